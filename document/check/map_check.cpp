#include "document/check/map_check.h"

#include "document/campaign_data.h"
#include "gamedata/limits.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>
#include <array>

#include <zlib.h>

namespace {

constexpr int gzipOnly = 31; // window bits

// One gzip member, unpacked to its end.
class Member
{
public:
    Member(const QByteArray &packed, qint64 allowance)
    {
        m_stream.next_in =
            reinterpret_cast<Bytef *>(const_cast<char *>(packed.constData())); // never written
        m_stream.avail_in = uInt(packed.size());
        if (inflateInit2(&m_stream, gzipOnly) == Z_OK)
            unpack(allowance);
        m_fault = m_stream.msg ? QString::fromLatin1(m_stream.msg) : QString();
        inflateEnd(&m_stream);
    }

    bool endsWell() const { return m_result == Z_STREAM_END; }
    bool isCutShort() const { return m_result == Z_BUF_ERROR; }
    bool exceedsAllowance() const { return m_exceeds; }
    const QString &fault() const { return m_fault; } // zlib's words
    qint64 size() const { return m_size; }
    qint64 behind() const { return m_stream.avail_in; }
    const QByteArray &head() const { return m_head; } // as much as a header may take

private:
    void unpack(qint64 allowance)
    {
        std::array<char, 65536> block;
        do {
            m_stream.next_out = reinterpret_cast<Bytef *>(block.data());
            m_stream.avail_out = uInt(block.size());
            m_result = inflate(&m_stream, Z_NO_FLUSH);
            const int made = int(block.size() - m_stream.avail_out);
            m_size += made;
            const qint64 wanted = limits::mapHeaderBytes - m_head.size();
            m_head.append(block.data(), int(std::min<qint64>(made, wanted)));
            m_exceeds = m_size > allowance;
        } while (m_result == Z_OK && !m_exceeds);
    }

    z_stream m_stream{};
    int m_result = Z_MEM_ERROR;
    bool m_exceeds = false;
    QString m_fault;
    qint64 m_size = 0;
    QByteArray m_head;
};

void checkHeader(const Member &member, const QString &where, Findings &findings)
{
    QDataStream stream(member.head());
    stream.setByteOrder(QDataStream::LittleEndian);
    ScenarioData scenario;
    scenario.ReadMapHeader(stream, false);
    const bool isCut = stream.status() != QDataStream::Ok;
    const bool restIsUnknown =
        member.exceedsAllowance() && member.head().size() < limits::mapHeaderBytes;
    if (isCut && restIsUnknown)
        return;
    if (isCut)
        findings.push_back({where, QStringLiteral("its header is cut short")});
    else if (scenario.mapHeader->anyPlayers == 0)
        findings.push_back({where, QStringLiteral("nobody can play it")});
}

} // namespace

void checkMap(const QByteArray &map, const QString &where, qint64 &allowance, Findings &findings)
{
    const auto find = [&](const QString &what) { findings.push_back({where, what}); };
    if (!map.startsWith("\x1f\x8b")) {
        find(QStringLiteral("isn't packed by gzip"));
        return;
    }
    const bool ofCampaign = allowance < limits::checkedMapBytes;
    const Member member(map, std::min(allowance, limits::checkedMapBytes));
    allowance = std::max(qint64(0), allowance - member.size());
    if (member.exceedsAllowance() && ofCampaign)
        find(QStringLiteral("isn't looked at whole: the campaign's maps are too large together"));
    else if (member.exceedsAllowance())
        find(QStringLiteral("is too large to be looked at whole"));
    else if (member.isCutShort())
        find(QStringLiteral("is cut short"));
    else if (!member.endsWell())
        find(QStringLiteral("is damaged: %1").arg(member.fault()));
    else if (member.behind() > 0)
        find(QStringLiteral("%1 bytes stand behind its end").arg(member.behind()));
    checkHeader(member, where, findings);
}

bool checkMapFile(QFile &file, Findings &findings)
{
    if (file.size() > limits::mapBytes)
        return false;
    const QByteArray bytes = file.readAll();
    if (bytes.size() != file.size())
        return false;
    qint64 allowance = limits::checkedMapBytes;
    checkMap(bytes, QStringLiteral("file"), allowance, findings);
    return true;
}
