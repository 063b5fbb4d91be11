#include "validate/validate.h"

#include "scene/attributes.h"
#include "scene/motion.h"
#include "text/limits.h"
#include "validate/datafile.h"

#include <QFileInfo>
#include <QRect>
#include <QtMath>

#include <algorithm>
#include <numeric>

using namespace Lw::HNodeAnimationText;

namespace AnimText::validate {
namespace {

QString Size(qint64 width, int height)
{
    return QStringLiteral("%1 x %2 pixels").arg(width).arg(height);
}

QString InQuotes(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

qint64 Sum(const QVector<int>& values)
{
    return std::accumulate(values.begin(), values.end(), qint64(0));
}

class NodeCheck
{
public:
    NodeCheck(const scene::Scene& scene, const scene::Place& place)
        : scene(scene)
        , node(scene.At(place))
        , place(place)
        , text(node.attributes.value("Text").toString())
        , motion(scene::MotionOf(node))
        , widths(Column("TextWidth", "text_width"))
        , heights(Column("TextHeight", "text_height"))
    {
    }

    QList<Finding> Run()
    {
        if (node.type != scene::SceneNode().type)
            Add(Mistake::NodeType, "type", InQuotes(node.type), InQuotes(scene::SceneNode().type));
        CheckArea();
        const scene::Attribute& hold = *scene::FindAttribute("hold");
        if (!scene::IsInRange(hold, node.hold))
            Add(Mistake::HoldRange, "hold", QString::number(node.hold),
                QStringLiteral("%1, in %2")
                    .arg(scene::RangeInWords(hold), scene::Translated(hold.unit)));
        CheckMode();
        CheckIgnored();
        CheckLists();
        CheckColors();
        CheckMeasures();
        CheckFiles();
        CheckCut();
        CheckOverlap();
        return findings;
    }

private:
    void CheckArea()
    {
        if (node.size.isEmpty()) {
            Add(Mistake::AreaEmpty, "size", Size(node.size.width(), node.size.height()),
                "1 x 1 pixels or more");
            return;
        }
        if (!QRect(QPoint(0, 0), scene.display).contains(QRect(node.pos, node.size)))
            Add(Mistake::AreaOutside, "pos",
                QStringLiteral("an area of %1 at %2, %3")
                    .arg(Size(node.size.width(), node.size.height()))
                    .arg(node.pos.x())
                    .arg(node.pos.y()),
                QStringLiteral("a place within the display of %1")
                    .arg(Size(scene.display.width(), scene.display.height())));
        const qint64 width = motion.IsSideways() ? Sum(widths) : node.size.width();
        const qint64 bytes = width * node.size.height() * (scene.alphaBlend ? 4 : 3);
        if (bytes > maxCanvasBytes)
            Add(Mistake::CanvasLarge, "size",
                QStringLiteral("a picture of %1, %2 MiB")
                    .arg(Size(width, node.size.height()))
                    .arg(bytes >> 20),
                QStringLiteral("at most %1 MiB").arg(maxCanvasBytes >> 20));
    }

    /** A finding when the attribute is beyond its range. */
    void CheckRange(Mistake mistake, const QString& key)
    {
        const scene::Attribute& attribute = *scene::FindAttribute(key);
        if (!scene::IsInRange(attribute, Number(key)))
            AddAttribute(mistake, key, scene::RangeInWords(attribute));
    }

    void CheckMode()
    {
        if (text.isEmpty())
            AddAttribute(Mistake::TextEmpty, "Text", "a text");
        if (motion.mode == scene::Mode::Still) {
            CheckRange(Mistake::ModeUnknown, "EffectType");
        } else {
            CheckRange(motion.IsScroll() ? Mistake::DirectionUnknown : Mistake::EffectUnknown,
                       motion.NumberKey());
            CheckRange(Mistake::SpeedRange, motion.SpeedKey());
        }
        CheckRange(Mistake::PlaysRange, "PlayTimes");
        // Negative numbers are opaque colors as Qt's QRgb has them; their lowest 24 bits are right.
        if (Number("StrokeColor") > 0)
            CheckRange(Mistake::ColorRange, "StrokeColor");
        for (const QString& key : scene::KeysOf(scene::Home::Attributes)) {
            if (scene::FindAttribute(key)->kind == scene::ValueKind::Flag)
                CheckRange(Mistake::FlagValue, key);
        }
    }

    void CheckIgnored()
    {
        const QString withDazzle = "0, or \"CheckDazzle\" 1 beside it";
        if (Has("CheckColorGradient") && !Has("CheckDazzle"))
            AddAttribute(Mistake::GradientIgnored, "CheckColorGradient", withDazzle);
        if (Has("CheckPictureFills") && !Has("CheckDazzle"))
            AddAttribute(Mistake::PictureIgnored, "CheckPictureFills", withDazzle);
        if (Has("CheckShadowEffect"))
            AddAttribute(Mistake::ShadowIgnored, "CheckShadowEffect", "0");
        if (Has("Stroke"))
            AddAttribute(Mistake::StrokeIgnored, "Stroke", "0");
    }

    void CheckLists()
    {
        for (const QString& key : scene::ListKeys()) {
            const int rows = node.lists.value(key).size();
            if (rows != text.size())
                Add(rows < text.size() ? Mistake::ListLength : Mistake::ListSurplus, "lists." + key,
                    node.lists.contains(key) ? scene::Counted(rows, "row") : "no list",
                    "a row for each of " + scene::Counted(text.size(), "character"));
            for (const QString& field : scene::RowFields(key)) {
                if (field != QLatin1String("fontName"))
                    CheckRows(key, field);
            }
        }
    }

    void CheckColors()
    {
        const QString list = "TextAttribute";
        const QString color = "Color";
        const auto styles = node.lists.value(list);
        const scene::Attribute& range = *scene::FindAttribute(color);
        const auto find = [&](Mistake mistake, const QString& expected, const auto& isBad) {
            for (int i = 0; i < styles.size(); ++i) {
                const QString value = styles[i].value(color);
                if (isBad(value))
                    return AddRow(mistake, list, i, color, InQuotes(value), expected);
            }
        };
        find(Mistake::ColorRange, scene::RangeInWords(range),
             [&](const QString& value) { return value.toInt() > range.most; });
        const QString first = styles.value(0).value(color);
        find(Mistake::ColorsIgnored, InQuotes(first) + " as in the first row",
             [&](const QString& value) { return value != first; });
    }

    /** A finding on the first row of @p list whose @p field is no number, or a size below 0. */
    void CheckRows(const QString& list, const QString& field)
    {
        const bool isSize = list != QLatin1String("TextAttribute");
        const auto rows = node.lists.value(list);
        QVector<int> bad;
        for (int i = 0; i < rows.size(); ++i) {
            bool isNumber = false;
            const int value = rows[i].value(field).toInt(&isNumber);
            if (!isNumber || (isSize && value < 0))
                bad.append(i);
        }
        if (bad.isEmpty())
            return;
        const QHash<QString, QString>& row = rows[bad.first()];
        AddRow(Mistake::RowValue, list, bad.first(), field,
               (row.contains(field) ? InQuotes(row.value(field)) : "nothing") +
                   scene::AndMore(bad.size() - 1),
               isSize ? "a decimal number from 0" : "a decimal number");
    }

    void CheckMeasures()
    {
        const qint64 length = Sum(widths);
        if (motion.IsSideways() && length > lastPaintableX)
            Add(Mistake::LineLong, "lists.TextWidth",
                QStringLiteral("a line of %1 pixels").arg(length),
                QStringLiteral("at most %1 pixels").arg(lastPaintableX));
        const auto widest = std::max_element(widths.begin(), widths.end());
        if (!motion.IsSideways() && widest != widths.end() && *widest > node.size.width())
            AddRow(Mistake::CharacterWide, "TextWidth", int(widest - widths.begin()), "text_width",
                   QStringLiteral("%1 pixels").arg(*widest),
                   QStringLiteral("no more than the area's width, %1").arg(node.size.width()));
    }

    void CheckFiles()
    {
        for (const QString& key : scene::KeysOf(scene::Home::Files)) {
            const QString at = "files." + key;
            const bool isData =
                key == QLatin1String("PathData") || key == QLatin1String("DescentVector");
            const QString name = node.files.value(key);
            const QString path = scene.FullName(name);
            const bool isExpected = node.files.contains(key) || (isData && !text.isEmpty());
            const bool isShown = (key == QLatin1String("FillImage") && Has("CheckPictureFills")) ||
                                 (key == QLatin1String("NeonGifPath") &&
                                  scene::IsUsed(*scene::FindAttribute(key), node));
            if (name.isEmpty() && isExpected)
                Add(Mistake::FileMissing, at, "nothing", "the name of a data file");
            else if (name.isEmpty() && isShown)
                Add(Mistake::PictureMissing, at, "nothing", "the name of a picture file");
            else if (!name.isEmpty() && !QFileInfo::exists(path))
                Add(Mistake::FileMissing, at, "no file " + path, "a file");
            else if (!name.isEmpty() && isData)
                CheckData(at, path, key == QLatin1String("PathData"));
        }
    }

    void CheckData(const QString& at, const QString& path, bool holdsPaths)
    {
        const DataFile data = holdsPaths ? LookIntoPathFile(path) : LookIntoDescentFile(path);
        if (!data.fault.isEmpty()) {
            Add(Mistake::DataMalformed, at, QStringLiteral("%1: %2").arg(path, data.fault),
                "a serialized byte array of Base64 text with a serialized list in it");
            return;
        }
        const int entries = holdsPaths ? data.ink.size() : data.descents.size();
        if (entries != text.size())
            Add(entries < text.size() ? Mistake::DataLength : Mistake::DataSurplus, at,
                scene::Counted(entries, holdsPaths ? "outline" : "descent"),
                "one for each of " + scene::Counted(text.size(), "character"));
        if (!data.badOutlines.isEmpty()) {
            const BadOutline& bad = data.badOutlines.first();
            Add(Mistake::OutlineMalformed, at,
                QStringLiteral("outline %1: %2%3")
                    .arg(bad.index)
                    .arg(bad.fault, scene::AndMore(data.badOutlines.size() - 1)),
                "moves, lines and curves within a million pixels");
        }
        if (holdsPaths) {
            ink = data.ink;
            CheckOutlines(data.isEmpty);
        } else {
            descents = data.descents;
        }
    }

    /** Uses the ink of the letters at rest, because a line may be higher than the area. */
    void CheckCut()
    {
        const bool scrollsThrough = motion.IsScroll() && !motion.IsSideways();
        if (scrollsThrough || heights.isEmpty() || descents.size() < text.size())
            return;
        const int height = node.size.height();
        const int highest = *std::max_element(heights.begin(), heights.end());
        qint64 above = 0;
        qint64 below = 0;
        for (int i = 0; i < qMin(ink.size(), text.size()); ++i) {
            const qint64 baseline = qint64(height / 2) + highest / 2 - descents.value(i);
            if (ink[i].isEmpty())
                continue;
            above = qMax<qint64>(above, qCeil(-ink[i].top()) - baseline);
            below = qMax<qint64>(below, qCeil(ink[i].bottom()) + baseline - height);
        }
        if (above > 0 || below > 0)
            Add(Mistake::TextHigh, "files.PathData",
                QStringLiteral("letters that reach %1 pixels above the area and %2 below it")
                    .arg(above)
                    .arg(below),
                QStringLiteral("letters within the area's %1 pixels").arg(height));
    }

    void CheckOutlines(const QVector<bool>& isEmpty)
    {
        QVector<int> gaps;
        for (int i = 0; i < qMin(isEmpty.size(), text.size()); ++i) {
            const QChar::Category category = text.at(i).category();
            const bool unseen = text.at(i).isSpace() || category == QChar::Other_Format ||
                                category == QChar::Other_Control || text.at(i).isLowSurrogate();
            // Characters that share the outline of the one before them have no width.
            if (isEmpty[i] && !unseen && widths.value(i) > 0)
                gaps.append(i);
        }
        if (!gaps.isEmpty())
            Add(Mistake::OutlineEmpty, "files.PathData",
                QStringLiteral("no outline for character %1 of the text%2")
                    .arg(gaps.first())
                    .arg(scene::AndMore(gaps.size() - 1)),
                "an outline for all that is seen");
    }

    /** The nodes of one area play in turn; those of other areas of its page play beside them. */
    void CheckOverlap()
    {
        for (int a = 0; a < place.area; ++a) {
            for (const scene::SceneNode& other : scene.pages[place.page].areas[a].nodes) {
                const QRect both = QRect(node.pos, node.size) & QRect(other.pos, other.size);
                if (!both.isEmpty())
                    return Add(Mistake::AreasOverlap, "pos",
                               Size(both.width(), both.height()) +
                                   QStringLiteral(" in common with areas[%1]").arg(a),
                               "areas side by side");
            }
        }
    }

    QVector<int> Column(const char* list, const char* field) const
    {
        QVector<int> values;
        for (const QHash<QString, QString>& row : node.lists.value(QLatin1String(list)))
            values.append(row.value(QLatin1String(field)).toInt());
        return values;
    }

    void Add(Mistake mistake, const QString& where, const QString& found, const QString& expected)
    {
        findings.append({mistake, scene::Member(place.Path(), where), found, expected});
    }

    void AddRow(Mistake mistake, const QString& list, int row, const QString& field,
                const QString& found, const QString& expected)
    {
        const QString item = scene::Item(scene::Member("lists", list), row);
        Add(mistake, scene::Member(item, field), found, expected);
    }

    void AddAttribute(Mistake mistake, const QString& key, const QString& expected)
    {
        const QVariant value = node.attributes.value(key);
        Add(mistake, scene::Member("attributes", key),
            value.toString().isEmpty() ? "nothing" : value.toString(), expected);
    }

    bool Has(const QString& flag) const { return Number(flag) == 1; }
    int Number(const QString& key) const { return node.attributes.value(key).toInt(); }

    const scene::Scene& scene;
    const scene::SceneNode& node;
    const scene::Place place;
    const QString text;
    const scene::NodeMotion motion;
    const QVector<int> widths;
    const QVector<int> heights;
    QVector<int> descents;
    QVector<QRectF> ink; // of the outlines
    QList<Finding> findings;
};

} // namespace

QList<Finding> ValidateScene(const scene::Scene& scene)
{
    if (scene.Nodes().isEmpty())
        return {{Mistake::SceneEmpty, "$.pages", "no nodes", "one or more"}};
    QList<Finding> findings;
    for (const scene::Place& place : scene.Places()) {
        findings += NodeCheck(scene, place).Run();
    }
    return findings;
}

QList<Finding> ValidateScene(const QString& path)
{
    scene::Scene scene;
    QString first;
    QList<scene::SceneFault> faults;
    if (scene::ReadScene(path, &scene, &first, scene::MissingFiles::AreAccepted, &faults))
        return ValidateScene(scene);
    QList<Finding> findings;
    for (const scene::SceneFault& fault : faults)
        findings.append({Mistake::SceneUnreadable, fault.place,
                         fault.found + scene::AndMore(fault.others), fault.expected});
    return findings;
}

} // namespace AnimText::validate
