// What the window computes, and doesn't answer meanwhile, while it carries out a command on the
// largest documents: a campaign of 1,000 maps, and one of as many scenarios as there may be.
// Dialogs are opened and accepted at once.
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "benchmarks/scenario_chain.h"
#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "shell/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <memory>
#include <stdexcept>

#include <sys/resource.h>

namespace {

constexpr double patience = 1; // seconds
constexpr unsigned manyMaps = campaignMaps.back();

// Answers whatever is asked with the file, if it is a file, and with Yes.
void answerWith(const QString &path)
{
    QWidget *asking = QApplication::activeModalWidget();
    if (auto *box = qobject_cast<QMessageBox *>(asking)) {
        if (QAbstractButton *button = box->button(QMessageBox::Yes))
            button->click();
        else
            box->accept();
    } else if (auto *files = qobject_cast<QFileDialog *>(asking)) {
        files->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        static_cast<QDialog *>(files)->accept();
    } else if (auto *dialog = qobject_cast<QDialog *>(asking)) {
        dialog->accept();
    }
}

// The seconds that this thread computes by itself: neither what other programs take is among them
// nor what the system does for it, which is reading and writing.
template<typename Work>
rows::Measure computing(Work work)
{
    return [work = std::move(work)] {
        const auto now = [] {
            rusage usage{};
            getrusage(RUSAGE_THREAD, &usage);
            return double(usage.ru_utime.tv_sec) + double(usage.ru_utime.tv_usec) / 1e6;
        };
        const double before = now();
        work();
        return now() - before;
    };
}

struct Document
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("campaign.e3c");
    const QString texts = folder.filePath("campaign.txt");
    std::unique_ptr<MainWindow> window;

    explicit Document(const Inputs &inputs) : folder(inputs.folder + "/stalls-XXXXXX") {}

    void open()
    {
        EditorData::info.modified = false;
        window = std::make_unique<MainWindow>(nullptr);
        window->show();
        QCoreApplication::processEvents();
        window->loadFile(path);
        QCoreApplication::processEvents();
    }

    // Answers again and again while the command runs, also what an answer leads to.
    void answer(const std::shared_ptr<bool> &running) const
    {
        if (!*running)
            return;
        QTimer::singleShot(0, [=] { answer(running); });
        answerWith(texts);
    }

    // A document with changes, so that its copy is renewed whenever a command may have changed it.
    void carryOut(const char *command) const
    {
        EditorData::info.modified = true;
        const auto running = std::make_shared<bool>(true);
        QTimer::singleShot(0, [=] { answer(running); });
        if (!QMetaObject::invokeMethod(window.get(), command))
            throw std::runtime_error("the window has no such command");
        *running = false;
        QCoreApplication::processEvents();
    }
};

struct Command
{
    const char *name;
    const char *slot;
    int turns = 3; // one for what the disk makes long, and for what can't be done again
};

constexpr std::array<Command, 8> commands = {{
    {"campaign properties", "openCampaignProperties"},
    {"scenario properties", "openScenarioProperties"},
    {"export texts", "exportTexts"},
    {"import texts", "importTexts"},
    {"export maps", "exportMaps", 1},
    {"refresh maps", "refreshMaps", 1},
    {"save", "save"},
    {"convert", "openConvertCampaign", 1},
}};

void addCommands(const std::string &of, const std::function<std::shared_ptr<Document>()> &make)
{
    rows::Row row;
    row.reference = "a second of computing";
    row.turns = 3;
    const rows::Measure second = [] { return patience; };
    row.work = of + ": open";
    row.prepare = [=] {
        const std::shared_ptr<Document> document = make();
        return rows::Pair{computing([=] { document->open(); }), second};
    };
    rows::add(row);
    for (const Command &command : commands) {
        row.work = of + ": " + command.name;
        row.turns = command.turns;
        row.prepare = [=] {
            const std::shared_ptr<Document> document = make();
            document->open();
            if (command.slot == std::string("importTexts"))
                document->carryOut("exportTexts");
            if (command.slot == std::string("refreshMaps"))
                document->carryOut("exportMaps");
            return rows::Pair{computing([=] { document->carryOut(command.slot); }), second};
        };
        rows::add(row);
    }
}

} // namespace

void addStallRows(const Inputs &inputs)
{
    addCommands("1,000 maps of 550 KB", [inputs] {
        auto document = std::make_shared<Document>(inputs);
        if (!QFile::copy(inputs.campaign(manyMaps), document->path))
            throw std::runtime_error("a campaign can't be copied");
        return document;
    });
    addCommands("30,000 scenarios in a chain", [inputs] {
        auto document = std::make_shared<Document>(inputs);
        if (!scenarioChain(30000).saveTo(document->path).ok)
            throw std::runtime_error("a campaign can't be written");
        return document;
    });
}
