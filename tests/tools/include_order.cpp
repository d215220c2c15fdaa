#include "tests/tools/include_order.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QRegularExpression>

namespace {

struct RoomRow
{
    const char *name;
    const char *places;
    const char *below;
    bool widgets = true;
};

constexpr RoomRow kRooms[] = {
    {"runtime", "gamedata/runtime/", "", false},
    {"gamedata", "gamedata/", "runtime", false},
    {"document", "document/", "gamedata", false},
    {"leaves",
     "shell/choice_box. shell/chosen_button. shell/custom_widgets. shell/dialog_look. "
     "shell/drag_and_drop_handler. shell/elided_label. shell/plain_message_boxes. "
     "shell/plain_tool_tips. shell/readable_icon. shell/right_click_filter. "
     "shell/shown_text. shell/wait_cursor. shell/warning_box.",
     ""},
    {"sound", "shell/mss_info. shell/sound_library. shell/tune_file.", "gamedata", false},
    {"map view", "shell/campaign_map_view.", "gamedata"},
    {"scenario", "scenario/", "document|leaves|sound"},
    {"campaign_dialogs", "campaign_dialogs/", "document|leaves|sound"},
    {"shell", "shell/", "scenario|campaign_dialogs|map view"},
    {"launcher", "launcher/", "gamedata|leaves"},
    {"cli", "cli/", "document", false},

    // The maker of the sample game has writers of its own, so that no reader proves itself.
    {"tools/sample_game", "tools/sample_game/", "", false},
    {"tools/manual", "tools/manual/", "shell"},
    {"tools/icons", "tools/icons/", "", false},
    {"cmake", "cmake/", "", false},

    {"made files", "tests/support/byte_writer. tests/support/packing.", "", false},
    {"fuzz", "fuzz/", "document|made files", false},
    {"tests/support", "tests/support/", "document|fuzz"},
    {"tests/runtime", "tests/runtime/", "runtime|tests/support", false},
    {"tests/gamedata", "tests/gamedata/", "gamedata|tests/support", false},
    {"tests/document", "tests/document/", "document|tests/support", false},
    {"tests/shell", "tests/shell/", "shell|launcher|tests/document"},
    {"tests/scenario", "tests/scenario/", "tests/shell"},
    {"tests/saving", "tests/saving/", "tests/shell|tests/gamedata"},
    {"tests/cli", "tests/cli/", "cli|tests/document", false},
    {"tests/strangers", "tests/strangers/", "tests/scenario|tests/cli"},
    {"tests/tools", "tests/tools/", "tools/sample_game|tools/manual|tests/support"},
    {"tests/monkey", "tests/monkey/", "shell|cli|tests/support"},
    {"fuzz/dialog", "fuzz/dialog/", "tests/monkey"},
    {"tests/desktop", "tests/desktop/", "tests/support"},
    {"tests/everybody", "tests/everybody/", "tools/manual|tests/shell"},
    {"tests/performance", "tests/performance/", "shell|tests/support"},
    {"benchmarks", "benchmarks/", "tests/gamedata|tests/performance"},
};

// For each room, by its number, the numbers of all rooms it may include.
QVector<QSet<int>> allowedRooms(const QVector<Room> &rooms)
{
    QVector<QSet<int>> allowed;
    for (int i = 0; i < rooms.size(); ++i) {
        QSet<int> own{i};
        for (int lower = 0; lower < i; ++lower)
            if (rooms[i].below.contains(rooms[lower].name))
                own += allowed[lower];
        allowed << own;
    }
    return allowed;
}

int roomOf(const QString &path, const QVector<Room> &rooms)
{
    int found = -1;
    int length = 0;
    for (int i = 0; i < rooms.size(); ++i)
        for (const QString &place : rooms[i].places)
            if (path.startsWith(place) && place.size() > length) {
                found = i;
                length = place.size();
            }
    return found;
}

struct Include
{
    QString name;
    bool quoted;
};

QVector<Include> includesIn(const QByteArray &source)
{
    static const QRegularExpression directive(
        QStringLiteral(R"(^\s*#\s*include\s*(["<])([^">]+)[">])"),
        QRegularExpression::MultilineOption);
    QVector<Include> includes;
    auto matches = directive.globalMatch(QString::fromUtf8(source));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        includes << Include{match.captured(2), match.captured(1) == QLatin1String("\"")};
    }
    return includes;
}

// What uic and moc make.
bool isMade(const QString &include)
{
    return include.startsWith(QLatin1String("ui_")) || include.endsWith(QLatin1String(".moc"));
}

class Inspector
{
public:
    Inspector(const SourceTree &sources, const QVector<Room> &rooms, const QSet<QString> &widgets)
        : m_sources(sources), m_rooms(rooms), m_widgets(widgets), m_allowed(allowedRooms(rooms))
    {
        for (auto it = sources.cbegin(); it != sources.cend(); ++it)
            m_includes[it.key()] = includesIn(it.value());
    }

    QStringList faults()
    {
        for (auto it = m_includes.cbegin(); it != m_includes.cend(); ++it)
            inspect(it.key(), it.value());
        for (auto it = m_includes.cbegin(); it != m_includes.cend(); ++it)
            followCircles(it.key());
        return m_faults;
    }

private:
    void inspect(const QString &file, const QVector<Include> &includes)
    {
        const int room = roomOf(file, m_rooms);
        if (room < 0) {
            m_faults << file + QStringLiteral(" stands in no room");
            return;
        }
        for (const Include &include : includes) {
            if (m_sources.contains(include.name))
                inspectWay(file, room, include.name);
            else if (include.quoted && !isMade(include.name))
                m_faults << QStringLiteral(
                                "%1 includes %2, which isn't there from the project's folder")
                                .arg(file, include.name);
            else if (!m_rooms[room].widgets && isWidget(include.name))
                m_faults << QStringLiteral("%1 includes the widget %2").arg(file, include.name);
        }
        const QString header = file.section('.', 0, 0) + QStringLiteral(".h");
        if (header != file && m_sources.contains(header) &&
            (includes.isEmpty() || includes.first().name != header))
            m_faults << QStringLiteral("%1 doesn't include %2 first").arg(file, header);
    }

    void inspectWay(const QString &file, int room, const QString &include)
    {
        const int other = roomOf(include, m_rooms);
        if (other >= 0 && !m_allowed[room].contains(other))
            m_faults << QStringLiteral("%1 includes %2, but %3 doesn't stand on %4")
                            .arg(file, include, m_rooms[room].name, m_rooms[other].name);
    }

    bool isWidget(const QString &include) const
    {
        return m_widgets.contains(include) || include.startsWith(QLatin1String("ui_"));
    }

    // Depth first; each circle is told once, from the file at which the walk entered it.
    void followCircles(const QString &file)
    {
        if (m_done.contains(file))
            return;
        const int start = m_way.indexOf(file);
        if (start >= 0) {
            m_faults << QStringList(m_way.mid(start) << file).join(QStringLiteral(" -> "));
            return;
        }
        m_way << file;
        for (const Include &include : m_includes.value(file))
            followCircles(include.name);
        m_way.removeLast();
        m_done << file;
    }

    const SourceTree &m_sources;
    const QVector<Room> &m_rooms;
    const QSet<QString> &m_widgets;
    const QVector<QSet<int>> m_allowed;
    QMap<QString, QVector<Include>> m_includes;
    QStringList m_faults;
    QStringList m_way;
    QSet<QString> m_done;
};

} // namespace

const QVector<Room> &roomsOfTheHouse()
{
    static const QVector<Room> rooms = [] {
        QVector<Room> built;
        for (const RoomRow &row : kRooms)
            built << Room{QString::fromLatin1(row.name), QString::fromLatin1(row.places).split(' '),
                          QString::fromLatin1(row.below).split('|', Qt::SkipEmptyParts),
                          row.widgets};
        return built;
    }();
    return rooms;
}

SourceTree readSources(const QString &projectFolder)
{
    SourceTree sources;
    const QDir project(projectFolder);
    const QStringList wanted{QStringLiteral("*.cpp"), QStringLiteral("*.h")};
    for (const QString &folder : project.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (folder == QLatin1String("build"))
            continue;
        QDirIterator files(project.filePath(folder), wanted, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                sources[project.relativeFilePath(file.fileName())] = file.readAll();
        }
    }
    return sources;
}

QSet<QString> widgetHeaders()
{
    QSet<QString> names;
    const QDir folder(QLibraryInfo::location(QLibraryInfo::HeadersPath) +
                      QStringLiteral("/QtWidgets"));
    for (const QString &name : folder.entryList(QDir::Files)) {
        names << name << QStringLiteral("QtWidgets/") + name;
    }
    return names;
}

QStringList faultsOf(const SourceTree &sources, const QVector<Room> &rooms,
                     const QSet<QString> &widgets)
{
    return Inspector(sources, rooms, widgets).faults();
}
