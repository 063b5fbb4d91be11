#include "scene/schema.h"

namespace AnimText {

const QStringList& TextAttributeKeys()
{
    static const QStringList keys{QStringLiteral("Text")};
    return keys;
}

const QStringList& NumberAttributeKeys()
{
    static const QStringList keys{
        QStringLiteral("AnimationEffect"),    QStringLiteral("AnimationSpeed"),
        QStringLiteral("CheckColorGradient"), QStringLiteral("CheckDazzle"),
        QStringLiteral("CheckNeonBg"),        QStringLiteral("CheckPictureFills"),
        QStringLiteral("CheckShadowEffect"),  QStringLiteral("ColorGradient"),
        QStringLiteral("ContinueSpeed"),      QStringLiteral("ContinueStyle"),
        QStringLiteral("EffectType"),         QStringLiteral("Hollow"),
        QStringLiteral("PlayTimes"),          QStringLiteral("Stroke"),
        QStringLiteral("StrokeColor"),        QStringLiteral("TextShadowBox")};
    return keys;
}

const QStringList& ListKeys()
{
    static const QStringList keys{QStringLiteral("TextAttribute"), QStringLiteral("TextHeight"),
                                  QStringLiteral("TextWidth")};
    return keys;
}

QStringList RowFields(const QString& key)
{
    if (key == QLatin1String("TextWidth"))
        return {QStringLiteral("text_width")};
    if (key == QLatin1String("TextHeight"))
        return {QStringLiteral("text_height")};
    if (key == QLatin1String("TextAttribute"))
        return {QStringLiteral("fontName"), QStringLiteral("fontSize"),  QStringLiteral("bold"),
                QStringLiteral("italic"),   QStringLiteral("underline"), QStringLiteral("Color")};
    return {};
}

const QStringList& FileKeys()
{
    static const QStringList keys{QStringLiteral("DescentVector"), QStringLiteral("FillImage"),
                                  QStringLiteral("NeonGifPath"), QStringLiteral("PathData")};
    return keys;
}

} // namespace AnimText
