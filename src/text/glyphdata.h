#ifndef GLYPHDATA_H
#define GLYPHDATA_H

#include <QByteArray>
#include <QPainterPath>
#include <QVector>

class QIODevice;

namespace Lw {
namespace HNodeAnimationText {

/*
 * The two data files of a node: a serialized QByteArray of Base64 text, which decodes to a
 * serialized QVector in QDataStream::Qt_4_8. Qt's operators trust the counts that they read, so the
 * bytes are checked first; well-formed data reaches the operators unchanged.
 */

/** What is wrong in the bytes of a data file, and where. */
struct GlyphDataFault
{
    enum Kind {
        Sound,
        // The outline is malformed in itself: it stays empty and the others keep their places.
        TooManyElements, ///< number elements, at most limit
        UnknownElement,  ///< the element has the type number
        NoMoveFirst,     ///< the outline begins with the type number
        BrokenCurve,     ///< before the element a curve lacks points, or it is a point without one
        FarOut,          ///< the element is at (x, y)
        StartOutside,    ///< the last contour begins at element number of limit elements
        UnknownFillRule, ///< number
        // Lengths are unknown: nothing is read.
        CutOff,       ///< the bytes end in or before the outline, one of limit
        NoCount,      ///< the bytes end within the number of entries
        CountTooLarge ///< number entries are announced, for limit there are bytes
    };

    explicit GlyphDataFault(Kind kind = Sound, int element = 0, qint64 number = 0, qint64 limit = 0)
        : kind(kind)
        , element(element)
        , number(number)
        , limit(limit)
        , x(0)
    {
    }

    bool LeavesNothing() const { return kind >= CutOff; }

    Kind kind;
    int outline = 0; ///< index
    int element;     ///< index in the outline
    qint64 number;
    qint64 limit;
    double x = 0, y = 0; ///< pixels
};

/** The decoded bytes of an open data file; empty when they cannot be read. */
QByteArray ReadGlyphData(QIODevice& file);

/**
 * The outlines in @p bytes. Empty when the lengths contradict the bytes. An outline of known length
 * with wrong elements is empty, and the others keep their places.
 */
QVector<QPainterPath> OutlinesFrom(const QByteArray& bytes);

/** Why OutlinesFrom() leaves outlines out, in their order; empty for sound bytes. */
QVector<GlyphDataFault> OutlineFaults(const QByteArray& bytes);

/** The descents in @p bytes, in pixels; empty when the count contradicts the bytes. */
QVector<int> DescentsFrom(const QByteArray& bytes);

/** Why DescentsFrom() returns nothing; Sound when the count fits the bytes. */
GlyphDataFault DescentFault(const QByteArray& bytes);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
