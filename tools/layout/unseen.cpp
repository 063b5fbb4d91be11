#include "layout/shaping.h"

#include <QVector>

namespace AnimText {
namespace {

/** Whether a character has ink: not a space, a control or a mark that only affects shaping. */
bool OughtToBeSeen(uint codePoint)
{
    switch (QChar::category(codePoint)) {
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format: return false;
    default: break;
    }
    const bool variationSelector = (codePoint >= 0xFE00 && codePoint <= 0xFE0F) ||
                                   (codePoint >= 0xE0100 && codePoint <= 0xE01EF);
    const bool filler = codePoint == 0x034F || codePoint == 0x115F || codePoint == 0x1160 ||
                        codePoint == 0x2800 || codePoint == 0x3164 || codePoint == 0xFFA0;
    return !variationSelector && !filler;
}

} // namespace

QList<UnseenCharacter> UnseenCharacters(const QString& text, const ShapedLine& line)
{
    QList<UnseenCharacter> unseen;
    for (const Cluster& cluster : line.clusters) {
        QVector<int> places = cluster.missing;
        if (places.isEmpty() && cluster.shape.isEmpty())
            places.append(cluster.first);
        for (int place : places) {
            const uint codePoint = text.mid(place, 2).toUcs4().value(0);
            if (OughtToBeSeen(codePoint))
                unseen.append({place, codePoint, !cluster.missing.isEmpty()});
        }
    }
    return unseen;
}

} // namespace AnimText
