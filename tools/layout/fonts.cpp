#include "layout/fonts.h"

#include "scene/suggest.h"

#include <QFileInfo>
#include <QFontDatabase>

#include <algorithm>

namespace AnimText {

QStringList FontFamilies(const QString& filter)
{
    return QFontDatabase().families().filter(filter, Qt::CaseInsensitive);
}

QString DidYouMeanOneOf(const QString& word, const QStringList& known)
{
    const QStringList holders = known.filter(word, Qt::CaseInsensitive);
    const auto shortest =
        std::min_element(holders.begin(), holders.end(),
                         [](const QString& a, const QString& b) { return a.size() < b.size(); });
    if (word.isEmpty() || shortest != holders.end())
        return DidYouMean(word.isEmpty() ? word : *shortest, known);
    const QString whole = DidYouMean(word, known);
    if (!whole.isEmpty())
        return whole;
    QStringList beginnings;
    const int words = word.count(QLatin1Char(' ')) + 1;
    for (const QString& name : known)
        beginnings.append(name.section(QLatin1Char(' '), 0, words - 1));
    const int closest = beginnings.indexOf(Closest(word, beginnings));
    return closest < 0 ? QString() : DidYouMean(known[closest], known);
}

bool FindFamily(const QString& name, QString* family, QString* error)
{
    static const QStringList generic{QStringLiteral("Sans"), QStringLiteral("Sans Serif"),
                                     QStringLiteral("Serif"), QStringLiteral("Monospace")};
    const QStringList families = FontFamilies();
    *family = name;
    if (families.isEmpty()) {
        *error = QStringLiteral("no fonts are installed; apt-get install fonts-dejavu-core");
    } else if (QFileInfo(name).isFile()) {
        const int id = QFontDatabase::addApplicationFont(name);
        *family = QFontDatabase::applicationFontFamilies(id).value(0);
        if (!family->isEmpty())
            return true;
        *error = QStringLiteral("%1: not a font file").arg(name);
    } else if ((families + generic).contains(name, Qt::CaseInsensitive)) {
        return true;
    } else {
        *error = QStringLiteral("unknown font family \"%1\"%2")
                     .arg(name, DidYouMeanOneOf(name, families));
    }
    return false;
}

} // namespace AnimText
