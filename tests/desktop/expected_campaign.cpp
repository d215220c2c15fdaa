#include "tests/desktop/expected_campaign.h"

#include "tests/desktop/failure.h"
#include "tests/desktop/files.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString atLeastKey = QStringLiteral("atLeast");

QByteArray existing(const QString &path)
{
    QByteArray bytes = contentOf(path);
    if (bytes.isEmpty())
        throw Failure("a file to compare with", path + " is missing");
    return bytes;
}

QString bits(const QJsonObject &told)
{
    const bool set = told.contains("set");
    QString text(told["of"].toInt(), set ? '0' : '1');
    const QJsonArray others = told[set ? "set" : "clear"].toArray();
    for (const QJsonValue &place : others)
        text[place.toInt()] = set ? '1' : '0';
    return text;
}

QJsonValue expanded(const QJsonValue &told, const QString &maps);

QJsonObject expandedMembers(const QJsonObject &told, const QString &maps)
{
    QJsonObject members;
    for (auto member = told.begin(); member != told.end(); ++member)
        members[member.key()] = expanded(member.value(), maps);
    return members;
}

QJsonValue expandedObject(const QJsonObject &told, const QString &maps)
{
    if (told.contains("of"))
        return bits(told);
    if (told.contains("sizeOf"))
        return existing(maps + told["sizeOf"].toString()).size();
    if (!told.contains("bytesOf"))
        return expandedMembers(told, maps);
    const QByteArray bytes = existing(maps + told["bytesOf"].toString());
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    return QJsonObject{{"size", bytes.size()}, {"sha256", QString::fromLatin1(hash)}};
}

QJsonValue expanded(const QJsonValue &told, const QString &maps)
{
    if (told.isObject())
        return expandedObject(told.toObject(), maps);
    if (!told.isArray())
        return told;
    QJsonArray values;
    const QJsonArray list = told.toArray();
    for (const QJsonValue &value : list)
        values.append(expanded(value, maps));
    return values;
}

// The whole with another value at the place; an empty place is the whole itself.
QJsonValue changed(const QJsonValue &whole, const QStringList &place, const QJsonValue &value)
{
    if (place.isEmpty())
        return value;
    const QString &first = place.constFirst();
    if (!whole.isArray()) {
        QJsonObject object = whole.toObject();
        object[first] = changed(object[first], place.mid(1), value);
        return object;
    }
    QJsonArray list = whole.toArray();
    const int index = first.toInt();
    if (index >= list.size())
        list.append(changed({}, place.mid(1), value));
    else
        list[index] = changed(list[index], place.mid(1), value);
    return list;
}

QString words(const QJsonValue &value)
{
    if (value.isUndefined())
        return QStringLiteral("nothing");
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2));
}

QString differenceOfMembers(const QJsonObject &expected, const QJsonObject &seen,
                            const QString &place, bool more)
{
    for (auto member = expected.begin(); member != expected.end(); ++member) {
        QString difference =
            firstDifference(member.value(), seen[member.key()], place + '/' + member.key());
        if (!difference.isEmpty())
            return difference;
    }
    for (auto member = seen.begin(); !more && member != seen.end(); ++member) {
        if (!expected.contains(member.key()))
            return place + '/' + member.key() + ": expected nothing, seen " + words(member.value());
    }
    return {};
}

QString differenceOfLists(const QJsonArray &expected, const QJsonArray &seen, const QString &place)
{
    for (int i = 0; i < qMax(expected.size(), seen.size()); ++i) {
        QString difference =
            firstDifference(i < expected.size() ? expected[i] : QJsonValue(QJsonValue::Undefined),
                            i < seen.size() ? seen[i] : QJsonValue(QJsonValue::Undefined),
                            place + '/' + QString::number(i));
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

} // namespace

QJsonValue expectedCampaign(const QString &path, const QString &maps)
{
    QJsonParseError fault;
    const QJsonObject told = QJsonDocument::fromJson(existing(path), &fault).object();
    if (fault.error != QJsonParseError::NoError)
        throw Failure(path + " is JSON", fault.errorString());
    if (!told.contains("like"))
        return expanded(told, maps);
    const QString other = QFileInfo(path).path() + '/' + told["like"].toString();
    QJsonValue campaign = expectedCampaign(other, maps);
    const QJsonObject but = told["but"].toObject();
    for (auto change = but.begin(); change != but.end(); ++change)
        campaign = changed(campaign, change.key().split('/'), expanded(change.value(), maps));
    return campaign;
}

QString firstDifference(const QJsonValue &expected, const QJsonValue &seen, const QString &place)
{
    if (expected.isObject() && seen.isObject()) {
        const QJsonObject object = expected.toObject();
        const bool more = object.contains(atLeastKey);
        return differenceOfMembers(more ? object[atLeastKey].toObject() : object, seen.toObject(),
                                   place, more);
    }
    if (expected.isArray() && seen.isArray())
        return differenceOfLists(expected.toArray(), seen.toArray(), place);
    if (expected == seen)
        return {};
    return place + ": expected " + words(expected) + ", seen " + words(seen);
}
