#include "scene/color.h"

#include "scene/suggest.h"

#include <QRegularExpression>

namespace AnimText::scene {

bool ReadColor(const QString& text, QColor* color, QString* hint)
{
    static const QRegularExpression digits("^#([0-9a-fA-F]{3}){1,2}$");
    const bool isHex = text.startsWith(QLatin1Char('#'));
    *color = QColor(text);
    if (color->isValid() && color->alpha() == 255 && (!isHex || digits.match(text).hasMatch()))
        return true;
    QStringList names = QColor::colorNames();
    names.removeOne("transparent");
    *hint =
        color->isValid() && color->alpha() < 255 ? "; it must be opaque" : DidYouMean(text, names);
    return false;
}

} // namespace AnimText::scene
