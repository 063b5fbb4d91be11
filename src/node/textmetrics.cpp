// Widths, heights, fonts and colors of a node's characters, and its division into pages. The
// author has measured everything; each read goes to the host's store.
#include "node/hanimationtextnode.h"

#include "text/pagedivision.h"
#include "text/wrapping.h"

#include <happconfig.h>

#include <QHash>

namespace Lw {
namespace HNodeAnimationText {

namespace {

typedef QHash<QString, QString> Row;

QList<Row> Rows(HData& data, const char* key)
{
    const auto list = data.GetList(QString::fromLatin1(key));
    return list ? list->items() : QList<Row>();
}

int Number(const Row& row, const char* field)
{
    return row.value(QString::fromLatin1(field)).toInt();
}

QVector<int> Numbers(HData& data, const char* key, const char* field)
{
    const QList<Row> rows = Rows(data, key);
    const QString name = QString::fromLatin1(field);
    QVector<int> numbers;
    numbers.reserve(rows.size());
    for (int i = 0; i < rows.size(); ++i)
        numbers.append(rows.at(i).value(name).toInt());
    return numbers;
}

int Largest(const QVector<int>& numbers)
{
    int largest = 0;
    for (int i = 0; i < numbers.size(); ++i)
        largest = qMax(largest, numbers.at(i));
    return largest;
}

} // namespace

int HAnimationTextNode::GetTextWidth(int index)
{
    return Number(Rows(*this, "TextWidth").value(index), "text_width");
}

int HAnimationTextNode::GetTextHeight(int index)
{
    return Number(Rows(*this, "TextHeight").value(index), "text_height");
}

LineWidths HAnimationTextNode::TextWidths()
{
    return LineWidths(Numbers(*this, "TextWidth", "text_width"));
}

QVector<int> HAnimationTextNode::TextHeights()
{
    return Numbers(*this, "TextHeight", "text_height");
}

int HAnimationTextNode::GetTextCountWith(int count)
{
    return TextWidths().CountWith(count);
}

int HAnimationTextNode::GetTotalTextWith()
{
    return TextWidths().Total();
}

int HAnimationTextNode::MaxTextWidth()
{
    return Largest(Numbers(*this, "TextWidth", "text_width"));
}

int HAnimationTextNode::MaxTextHeight()
{
    return Largest(TextHeights());
}

int HAnimationTextNode::CountTotalHeight()
{
    const QVector<int> heights = TextHeights();
    const int length = Text().size();
    int total = 0;
    for (int i = 0; i < length; ++i)
        total = WrappingSum(total, heights.value(i));
    return total;
}

QFont HAnimationTextNode::GetTextFont(int index)
{
    const QList<Row> rows = Rows(*this, "TextAttribute");
    if (index < 0 || index >= rows.size())
        return QFont();
    const Row& row = rows.at(index);
    QFont font(row.value(QString::fromLatin1("fontName")), Number(row, "fontSize"), -1, false);
    font.setWeight(Number(row, "bold") ? QFont::Bold : QFont::Normal);
    font.setStyle(Number(row, "italic") ? QFont::StyleItalic : QFont::StyleNormal);
    if (Number(row, "underline"))
        font.setUnderline(true); // else unset, so that it can be inherited
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

QColor HAnimationTextNode::GetTextColor(int index)
{
    const QList<Row> rows = Rows(*this, "TextAttribute");
    if (index < 0 || index >= rows.size())
        return QColor(255, 0, 0);
    return HAppConfig::IntToColor(Number(rows.at(index), "Color"));
}

void HAnimationTextNode::SelectPath(int forward)
{
    const LineWidths line = TextWidths();
    const int length = Text().size();
    const int areaWidth = Size().width();
    if (!forward) {
        CutBackward(line, length, areaWidth, pageBreaks, pageOffsets);
        return;
    }
    CutForward(line, length, areaWidth, pageBreaks, pageOffsets);
    if (pageBreaks.lastIndexOf(length) < 0) {
        pageBreaks.append(length);
        pageOffsets.append(line.Total());
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
