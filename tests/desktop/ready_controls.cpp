#include "tests/desktop/ready_controls.h"

QPoint place(const QJsonValue &point)
{
    return {point[0].toInt(), point[1].toInt()};
}

QJsonObject entryOf(const QJsonObject &seen)
{
    return seen["item"].toObject();
}

bool isReady(const QJsonObject &seen)
{
    return seen["active"].toBool() && seen["found"] == 1 && seen["enabled"].toBool();
}

QJsonObject ready(Editor &editor, const QString &control)
{
    return editor.waitFor({{"object", control}}, control + " can be used", isReady);
}

QJsonObject readyEntry(Editor &editor, const QJsonObject &question)
{
    return editor.waitFor(question, "the entry can be used", [](const QJsonObject &seen) {
        return isReady(seen) && entryOf(seen)["enabled"].toBool();
    });
}
