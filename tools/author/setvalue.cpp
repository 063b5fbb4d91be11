#include "author/setvalue.h"

#include "scene/attributes.h"
#include "scene/color.h"
#include "scene/motion.h"
#include "scene/suggest.h"
#include "scene/times.h"
#include "validate/datafile.h"

#include <QColor>
#include <QRegularExpression>
#include <QStringList>

namespace AnimText::author {
namespace {

/** Names on the command line and in the scene file. */
const QMap<QString, QString>& Aliases()
{
    static const QMap<QString, QString> aliases = {{"effect", "AnimationEffect"},
                                                   {"scroll", "ContinueStyle"},
                                                   {"plays", "PlayTimes"},
                                                   {"hollow", "Hollow"},
                                                   {"color", "Color"}};
    return aliases;
}

/**
 * Whether a text that was laid out for another motion also suits one of these traits. Text that is
 * aligned is out of its places where nothing turns, and ends its pages with wide spaces.
 */
bool Suits(scene::MotionTraits traits, const scene::SceneNode& node, const QString& pathFile)
{
    const QVector<QRectF> ink = validate::LookIntoPathFile(pathFile).ink;
    const auto rows = node.lists.value("TextWidth");
    bool isInPlace = true;
    int widestLetter = 0;
    int widestSpace = 0;
    for (int i = 0; i < ink.size(); ++i) {
        const int width = rows.value(i).value("text_width").toInt();
        int& widest = ink[i].isEmpty() ? widestSpace : widestLetter;
        widest = qMax(widest, width);
        const qreal middle = ink[i].center().x();
        isInPlace = isInPlace && (ink[i].isEmpty() || (middle >= 0 && middle <= width));
    }
    return (isInPlace || !(traits & scene::Turns)) &&
           (widestSpace <= widestLetter || !(traits & scene::EvenWidths));
}

QString ChangeMotion(const scene::Scene& scene, scene::SceneNode* node, const QString& key,
                     const QString& value)
{
    const bool scroll = key == "ContinueStyle";
    const scene::Motion* motion = scroll ? scene::FindScroll(value) : scene::FindEffect(value);
    if (!motion)
        return QStringLiteral("unknown %1 \"%2\"; animtext effects lists them")
            .arg(scroll ? "scroll" : "effect", value);
    const scene::NodeMotion next{scroll ? scene::Mode::Scroll : scene::Mode::Entrance,
                                 motion->number};
    const scene::NodeMotion now = scene::MotionOf(*node);
    const scene::MotionTraits different = next.Traits() ^ now.Traits();
    const QString pathFile = scene.FullName(node->files.value("PathData"));
    if (next.IsScroll() != now.IsScroll() || different & (scene::FromEnd | scene::Sideways) ||
        !Suits(next.Traits() & different, *node, pathFile))
        return QStringLiteral("%1 needs another layout; use animtext author --replace")
            .arg(QLatin1String(motion->name));
    node->attributes[key] = motion->number;
    return QString();
}

QString SetColor(scene::SceneNode* node, const QString& value)
{
    QColor color;
    QString hint;
    if (!scene::ReadColor(value, &color, &hint))
        return QStringLiteral("unknown color \"%1\"; expected a name or #rrggbb%2")
            .arg(value, hint);
    for (auto& row : node->lists["TextAttribute"])
        row["Color"] = QString::number(int(color.rgb() & 0xFFFFFF));
    return QString();
}

QString SetPos(scene::SceneNode* node, const QString& value)
{
    static const QRegularExpression pair("^(-?\\d{1,7}),(-?\\d{1,7})$");
    const QRegularExpressionMatch match = pair.match(value);
    if (!match.hasMatch())
        return QStringLiteral("pos is \"%1\"; expected two whole numbers such as 16,0").arg(value);
    node->pos = QPoint(match.captured(1).toInt(), match.captured(2).toInt());
    return QString();
}

QString SetHold(scene::SceneNode* node, const QString& value)
{
    double milliseconds = 0;
    int units = 0;
    if (!scene::ReadTime(value, &milliseconds) || !scene::ToHoldUnits(milliseconds, &units))
        return QStringLiteral("hold is \"%1\"; expected whole tenths of a second up to "
                              "100000s, such as 2s or 1500ms")
            .arg(value);
    node->hold = units;
    return QString();
}

QStringList Known()
{
    QStringList keys = scene::KeysOf(scene::Home::Attributes) + Aliases().keys();
    keys += {"speed", "hold", "pos", "neonEffect", "Color"};
    keys.removeAll("EffectType");
    keys.removeAll("Text");
    return keys;
}

} // namespace

QString SetValue(scene::Scene* scene, const scene::Place& place, const QString& word,
                 const QString& value)
{
    scene::SceneNode* node = &scene->At(place);
    QString key = Aliases().value(word, word);
    if (key == "speed")
        key = scene::MotionOf(*node).SpeedKey();
    if (key == "AnimationEffect" || key == "ContinueStyle")
        return ChangeMotion(*scene, node, key, value);
    if (key == "Color")
        return SetColor(node, value);
    if (key == "pos")
        return SetPos(node, value);
    if (key == "hold")
        return SetHold(node, value);
    if (!Known().contains(key))
        return QStringLiteral("%1 cannot be set; expected one of %2%3")
            .arg(word, Known().join(", "), scene::DidYouMean(word, Known()));
    const scene::Attribute& attribute = *scene::FindAttribute(key);
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber || !scene::IsInRange(attribute, number))
        return QStringLiteral("%1 is \"%3\"; expected a whole number, %2")
            .arg(word, scene::RangeInWords(attribute), value);
    scene::SetNumber(node, attribute, number);
    return QString();
}

} // namespace AnimText::author
