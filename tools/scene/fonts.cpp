#include "scene/fonts.h"

#include "scene/suggest.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>

namespace AnimText::scene {

QStringList FontFamilies(const QString& filter)
{
    return QFontDatabase().families().filter(filter, Qt::CaseInsensitive);
}

bool FindFamily(const QString& name, QString* family, QString* error)
{
    static const QStringList generic{"Sans", "Sans Serif", "Serif", "Monospace"};
    const QStringList families = FontFamilies();
    *family = name;
    if (families.isEmpty()) {
        *error = "no fonts are installed; apt-get install fonts-dejavu-core";
    } else if (QFileInfo(name).isFile()) {
        const int id = QFontDatabase::addApplicationFont(name);
        *family = QFontDatabase::applicationFontFamilies(id).value(0);
        if (!family->isEmpty())
            return true;
        *error = QStringLiteral("%1: not a font file").arg(name);
    } else if ((families + generic).contains(name, Qt::CaseInsensitive)) {
        return true;
    } else if (name == QLatin1String(usualFamily)) {
        *family = QGuiApplication::font().family();
        return true;
    } else {
        *error = QStringLiteral("unknown font family \"%1\"%2")
                     .arg(name, DidYouMeanOneOf(name, families));
    }
    return false;
}

} // namespace AnimText::scene
