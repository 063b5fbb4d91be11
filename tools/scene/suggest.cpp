#include "scene/suggest.h"

#include <QVector>

#include <algorithm>

namespace AnimText {

namespace {

int EditDistance(const QString& from, const QString& to)
{
    QVector<int> beforeLast(to.size() + 1);
    QVector<int> last(to.size() + 1);
    QVector<int> row(to.size() + 1);
    for (int column = 0; column <= to.size(); ++column)
        row[column] = column;
    for (int i = 1; i <= from.size(); ++i) {
        beforeLast = last;
        last = row;
        row[0] = i;
        for (int j = 1; j <= to.size(); ++j) {
            const int change = from.at(i - 1) == to.at(j - 1) ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + change});
            const bool swapped =
                i > 1 && j > 1 && from.at(i - 1) == to.at(j - 2) && from.at(i - 2) == to.at(j - 1);
            if (swapped)
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[to.size()];
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

} // namespace AnimText
