// The monkey's luck. The same seed throws the same numbers everywhere.
#pragma once

#include <QRandomGenerator>
#include <QVector>

class Dice
{
public:
    explicit Dice(quint32 seed) : m_generator(seed) {}

    // From 0 on; 0 if there is nothing to choose from.
    int below(int count) { return count > 0 ? int(m_generator.bounded(quint32(count))) : 0; }
    // Both ends are thrown as well.
    int between(int least, int most) { return least + below(most - least + 1); }
    bool chance(double share) { return m_generator.generateDouble() < share; }

    // The list mustn't be empty.
    template<typename List>
    auto pick(const List &list)
    {
        return list.begin()[below(int(list.size()))];
    }

    // An index, as often as its weight says; 0 if all weigh nothing.
    int weighted(const QVector<double> &weights)
    {
        double sum = 0;
        for (const double weight : weights)
            sum += weight;
        double left = m_generator.generateDouble() * sum;
        for (int i = 0; i < weights.size(); ++i) {
            left -= weights[i];
            if (left < 0)
                return i;
        }
        return 0;
    }

private:
    QRandomGenerator m_generator;
};
