#ifndef HANIMATIONTEXTNODE_H
#define HANIMATIONTEXTNODE_H

#include "text/linewidths.h"

#include <hneonnodebase.h>

#include <QColor>
#include <QFont>
#include <QList>
#include <QPainterPath>
#include <QVector>

class QTextDocument;

namespace Lw {
namespace HNodeAnimationText {

/**
 * One animated text in the host's tree. It keeps no copy of an attribute: every read goes to the
 * host's store, and what is missing there reads as 0, empty or a default.
 *
 * Per-character data is indexed by the UTF-16 units of "Text". Reads are not const, because some
 * hosts' stores have no const reads.
 */
class HAnimationTextNode : public HNeonNodeBase
{
    Q_OBJECT

public:
    HAnimationTextNode();
    ~HAnimationTextNode() override;

    /** "LW_animationText_Plugin". */
    QString Type() override;

    /** Play time in milliseconds; see duration.cpp. Divides the text into pages again. */
    int Duration() override;

    QString Text();
    int PlayTimes();
    /** 0 .. 9, larger is faster. */
    int AnimationSpeed();

    /** Reads the files "PathData" and "DescentVector" again; unreadable ones leave empty lists.
     */
    void InitPainterPath();
    /** The descent of each glyph in pixels, read from the file. */
    QVector<int>& GetDescentData();
    /** The outline of each glyph, origin at the left end of its baseline, read from the file. */
    QVector<QPainterPath>& GetPainterPaths();

    // Metrics of the text, in pixels, from the lists "TextWidth", "TextHeight", "TextAttribute".
    int GetTextWidth(int index);
    int GetTextHeight(int index);
    /** Of the first @p count characters; 0 for none of them and for all of them. */
    int GetTextCountWith(int count);
    int GetTotalTextWith();
    /** Never below 0. */
    int MaxTextWidth();
    /** Never below 0. */
    int MaxTextHeight();
    /** Of the characters of "Text", one above the other. */
    int CountTotalHeight();
    QFont GetTextFont(int index);
    /** Opaque red where the list ends. */
    QColor GetTextColor(int index);

    /** All of "TextWidth" at once, to lay out a whole line. */
    LineWidths TextWidths();
    /** All of "TextHeight" at once. */
    QVector<int> TextHeights();

    /**
     * Appends the division of the text into pages as wide as the area.
     * @param forward non-zero: from the start of the text; 0: from its end
     */
    void SelectPath(int forward);

signals:
    /** For the host; the plugin does not emit it. */
    void ReDrawImage();

private:
    Q_DISABLE_COPY(HAnimationTextNode)

    int ScrollDuration(int style);
    int EffectDuration(int effect);

    QTextDocument* textDocument; // part of the node's published shape; nothing reads it
    QVector<int> descentData;
    QVector<QPainterPath> painterPaths;
    QList<int> pageBreaks;
    QList<int> pageOffsets;

    friend class NodeProbe;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
