#include "document/prerequisites.h"

#include "document/campaign_data.h"

#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <map>
#include <vector>

namespace {

constexpr std::size_t wordBits = 64;
constexpr std::size_t wordBytes = sizeof(quint64);

bool isSet(const QBitArray &bits, unsigned int index)
{
    return index < unsigned(bits.size()) && bits.testBit(int(index));
}

quint64 wordAt(const char *bytes)
{
    quint64 raw = 0;
    std::memcpy(&raw, bytes, wordBytes);
    return qFromLittleEndian(raw);
}

// An array's bits in words of sixty-four, the first bit lowest; clear beyond the array's end. Words
// in front of `whole` lie in the array in full, which is all that can be said of them quickly.
struct Words
{
    const char *bytes;
    std::size_t size;  // in bytes
    std::size_t whole; // in words

    explicit Words(const QBitArray &bits)
        : bytes(bits.bits()), size((std::size_t(bits.size()) + 7) / 8), whole(size / wordBytes)
    {
    }

    quint64 operator[](std::size_t word) const
    {
        if (word < whole)
            return wordAt(bytes + word * wordBytes);
        quint64 rest = 0;
        for (std::size_t i = size; i > word * wordBytes; --i)
            rest = rest << 8 | uchar(bytes[i - 1]);
        return rest;
    }
};

std::size_t wordsFor(std::size_t bits)
{
    return (bits + wordBits - 1) / wordBits;
}

// Calls `visit` with the number of each bit set in a word that begins with bit `first`.
template<typename Visit>
void forEachBit(quint64 word, std::size_t first, Visit visit)
{
    for (; word != 0; word &= word - 1)
        visit(first + qCountTrailingZeroBits(word));
}

// In all walks a whole word of arrows is held at once against the scenarios seen: 30,000 that all
// require each other have 900 million arrows.

// Goes from a scenario along its arrows, to each scenario once, and calls `visit` with the arrows
// that start there until that answers false. The answer is a bit for each arrow's end seen.
template<typename Visit>
std::vector<quint64> walk(const std::vector<ScenarioData> &scenarios, std::size_t start,
                          Visit visit)
{
    std::vector<quint64> seen(wordsFor(scenarios.size()));
    std::vector<std::size_t> open{start};
    while (!open.empty()) {
        const std::size_t index = open.back();
        open.pop_back();
        if (index >= scenarios.size())
            continue;
        const QBitArray &bits = scenarios[index].prerequisites;
        if (!visit(bits))
            break;
        const Words arrows(bits);
        for (std::size_t word = 0; word < seen.size(); ++word) {
            const quint64 fresh = arrows[word] & ~seen[word];
            if (fresh == 0)
                continue;
            seen[word] |= fresh;
            forEachBit(fresh, word * wordBits, [&](std::size_t found) { open.push_back(found); });
        }
    }
    return seen;
}

// The graph with its arrows turned around. Only what is asked for is made, 64 scenarios at a time:
// the walk is run once for each scenario that requires nothing, and most of those lead nowhere.
class Dependents
{
public:
    explicit Dependents(const std::vector<ScenarioData> &scenarios)
        : m_scenarios(scenarios), m_words(wordsFor(scenarios.size()))
    {
    }

    std::size_t words() const { return m_words; }

    // A bit for each scenario that requires this one, in words() words.
    const quint64 *of(std::size_t required)
    {
        std::vector<quint64> &group = m_groups[required / wordBits];
        if (group.empty())
            group = turnedAround(required / wordBits);
        return group.data() + required % wordBits * m_words;
    }

private:
    std::vector<quint64> turnedAround(std::size_t word) const
    {
        std::vector<quint64> group(wordBits * m_words);
        for (std::size_t row = 0; row < m_scenarios.size(); ++row) {
            quint64 *column = group.data() + row / wordBits;
            const quint64 mark = quint64(1) << row % wordBits;
            forEachBit(Words(m_scenarios[row].prerequisites)[word], 0,
                       [&](std::size_t bit) { column[bit * m_words] |= mark; });
        }
        return group;
    }

    const std::vector<ScenarioData> &m_scenarios;
    std::size_t m_words;
    std::map<std::size_t, std::vector<quint64>> m_groups;
};

} // namespace

void CampaignData::removePrecondition(unsigned int index)
{
    for (ScenarioData &scenario : scenarios) {
        if (isSet(scenario.prerequisites, index)) // an array without the bit stays shared
            scenario.prerequisites.clearBit(int(index));
    }
}

void CampaignData::switchPreconditions(unsigned int a, unsigned int b)
{
    for (ScenarioData &scenario : scenarios) {
        QBitArray &bits = scenario.prerequisites;
        const bool hadA = isSet(bits, a);
        const bool hadB = isSet(bits, b);
        if (hadA == hadB)
            continue;
        bits.clearBit(int(hadA ? a : b));
        const unsigned int place = hadA ? b : a;
        if (place < unsigned(bits.size()))
            bits.setBit(int(place));
    }
}

bool hasPrerequisite(const ScenarioData &scenario, unsigned int required)
{
    return isSet(scenario.prerequisites, required);
}

void setPrerequisite(ScenarioData &scenario, unsigned int required, bool on)
{
    QBitArray &bits = scenario.prerequisites;
    if (isSet(bits, required) == on)
        return;
    if (required >= unsigned(bits.size()))
        bits.resize(int(required) + 1);
    bits.setBit(int(required), on);
}

void resizePrerequisites(CampaignData &campaign)
{
    const int count = int(campaign.scenarios.size());
    QBitArray before; // of the scenarios seen last, and what it has become
    QBitArray after(count);
    for (ScenarioData &scenario : campaign.scenarios) {
        QBitArray &bits = scenario.prerequisites;
        if (bits.size() == count)
            continue;
        if (bits.bits() != before.bits() || bits.size() != before.size()) {
            before = bits;
            after = bits;
            after.resize(count);
        }
        bits = after;
    }
}

bool isReferencedBy(CampaignData *campaign, unsigned int target, unsigned int scenario)
{
    bool found = false;
    walk(campaign->scenarios, scenario, [&](const QBitArray &bits) {
        found = isSet(bits, target);
        return !found;
    });
    return found;
}

QBitArray requiredBy(const CampaignData &campaign, unsigned int scenario)
{
    const std::vector<quint64> seen =
        walk(campaign.scenarios, scenario, [](const QBitArray &) { return true; });
    QBitArray required(int(campaign.scenarios.size()));
    for (std::size_t word = 0; word < seen.size(); ++word) {
        forEachBit(seen[word], word * wordBits, [&](std::size_t index) {
            if (index < std::size_t(required.size()))
                required.setBit(int(index));
        });
    }
    return required;
}

void addAllWithPrecondition(CampaignData &campaign, int index, std::set<ScenarioData *> &result)
{
    std::vector<ScenarioData> &scenarios = campaign.scenarios;
    Dependents dependents(scenarios);
    std::vector<quint64> seen(dependents.words());
    for (const ScenarioData *scenario : result) {
        const auto place = std::size_t(scenario - scenarios.data());
        seen[place / wordBits] |= quint64(1) << place % wordBits;
    }

    std::vector<std::size_t> open{unsigned(index)};
    while (!open.empty()) {
        const quint64 *column = dependents.of(open.back());
        open.pop_back();
        for (std::size_t word = 0; word < seen.size(); ++word) {
            const quint64 fresh = column[word] & ~seen[word];
            seen[word] |= fresh;
            forEachBit(fresh, word * wordBits, [&](std::size_t found) {
                result.insert(&scenarios[found]);
                open.push_back(found);
            });
        }
    }
}
