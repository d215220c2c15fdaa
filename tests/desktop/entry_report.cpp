#include "tests/desktop/entry_report.h"

#include "tests/desktop/entries.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace {

QString shortReport(const Entry &entry)
{
    const QString tick = entry.tickable
                             ? entry.checked ? QStringLiteral("[x] ") : QStringLiteral("[ ] ")
                             : QString();
    return tick + entry.text + (entry.enabled ? QString() : QStringLiteral(" (grey)"));
}

QJsonObject report(const Entry &entry)
{
    QJsonObject told{{"row", entry.row},
                     {"point", pointReport(entry.point)},
                     {"side", entry.side},
                     {"enabled", entry.enabled},
                     {"current", entry.current}};
    if (entry.tickable) {
        told["tick"] = pointReport(entry.tick);
        told["checked"] = entry.checked;
    }
    return told;
}

bool isAskedFor(const Entry &entry, const QJsonObject &question)
{
    return question.contains("row") ? entry.row == question["row"].toInt()
                                    : entry.text == question["item"].toString();
}

} // namespace

void describeEntries(QJsonObject &answer, QWidget *widget, const QJsonObject &question)
{
    const Entries entries = entriesOf(widget);
    answer["count"] = int(entries.size());
    answer["current"] = -1;
    QJsonArray texts;
    int ticks = 0;
    for (const Entry &entry : entries) {
        if (entry.current)
            answer["current"] = entry.row;
        if ((question.contains("item") || question.contains("row")) && isAskedFor(entry, question))
            answer["item"] = report(entry);
        if (entry.checked)
            ++ticks;
        texts.append(shortReport(entry));
    }
    answer["ticks"] = ticks;
    if (question["items"].toBool())
        answer["items"] = texts;
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        answer["open"] = box->view()->isVisible();
}
