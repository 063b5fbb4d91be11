#include "scene/suggest.h"

#include <QVector>

#include <algorithm>

namespace AnimText::scene {

namespace {

int EditDistance(const QString& from, const QString& to)
{
    QVector<QVector<int>> distance(from.size() + 1, QVector<int>(to.size() + 1));
    for (int i = 0; i <= from.size(); ++i) {
        for (int j = 0; j <= to.size(); ++j) {
            distance[i][j] = i + j; // where one of them is empty
            if (i == 0 || j == 0)
                continue;
            const int change = from.at(i - 1) == to.at(j - 1) ? 0 : 1;
            distance[i][j] = std::min(
                {distance[i - 1][j] + 1, distance[i][j - 1] + 1, distance[i - 1][j - 1] + change});
            const bool swapped =
                i > 1 && j > 1 && from.at(i - 1) == to.at(j - 2) && from.at(i - 2) == to.at(j - 1);
            if (swapped)
                distance[i][j] = std::min(distance[i][j], distance[i - 2][j - 2] + 1);
        }
    }
    return distance[from.size()][to.size()];
}

/**
 * The one of @p known that takes the fewest changed, added, dropped or swapped letters to come from
 * @p word, upper and lower case alike; empty when even that one is too far away to be meant.
 */
QString Closest(const QString& word, const QStringList& known)
{
    // Long words are not typing errors, and comparing them would take forever.
    constexpr int longest = 64;
    if (word.isEmpty() || word.size() > longest)
        return QString();
    QString best;
    int bestDistance = std::max(1, int(word.size()) / 3) + 1;
    for (const QString& candidate : known) {
        const int distance = EditDistance(word.toLower(), candidate.toLower());
        if (distance < bestDistance) {
            bestDistance = distance;
            best = candidate;
        }
    }
    return best;
}

QString Question(const QString& meant)
{
    return meant.isEmpty() ? QString() : QStringLiteral("; did you mean %1?").arg(meant);
}

} // namespace

QString DidYouMean(const QString& word, const QStringList& known)
{
    return Question(Closest(word, known));
}

QString DidYouMeanOneOf(const QString& word, const QStringList& known)
{
    const QStringList holders = known.filter(word, Qt::CaseInsensitive);
    const auto shortest =
        std::min_element(holders.begin(), holders.end(),
                         [](const QString& a, const QString& b) { return a.size() < b.size(); });
    if (shortest != holders.end())
        return Question(word.isEmpty() ? QString() : *shortest);
    const QString whole = Closest(word, known);
    if (!whole.isEmpty())
        return Question(whole);
    QStringList beginnings;
    const int words = word.count(QLatin1Char(' ')) + 1;
    for (const QString& name : known)
        beginnings.append(name.section(QLatin1Char(' '), 0, words - 1));
    return Question(known.value(beginnings.indexOf(Closest(word, beginnings))));
}

} // namespace AnimText::scene
