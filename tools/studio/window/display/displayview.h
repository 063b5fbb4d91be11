/**
 * @file
 * The display of the sign, with the areas of its texts to take hold of.
 */
#ifndef ANIMTEXT_DISPLAYVIEW_H
#define ANIMTEXT_DISPLAYVIEW_H

#include "live/pictureview.h"

#include <QRect>
#include <QVector>

namespace AnimText {

/** An area on the display. */
struct AreaFrame
{
    int id = 0; ///< of its text
    QRect rect; ///< pixels of the display
    QString title;
};

class DisplayView : public PictureView
{
    Q_OBJECT

public:
    explicit DisplayView(QWidget* parent = nullptr);

    /** The lowest first. */
    void SetFrames(const QVector<AreaFrame>& areas);
    const QVector<AreaFrame>& Frames() const { return frames; }
    void SetSelected(int id);
    /** Frames around all areas; else only around the one under the mouse. */
    void SetShowsFrames(bool all);
    /** Rulers in pixels of the display, at the edges of what is seen; else only during a drag. */
    void SetShowsRulers(bool always);
    /** Pixels that differ from another picture are marked; null for none. */
    void SetCompared(const QImage& other);
    /** How many pixels differ from it. */
    int Differences() const { return differences.size(); }

    /** Moves or resizes the selected area by keys: Alt and an arrow, with Shift its size. */
    bool HandleAreaKey(int key, Qt::KeyboardModifiers modifiers);

signals:
    void Selected(int id);
    /** @param gesture the same number as long as the mouse holds on */
    void AreaChanged(int id, const QRect& rect, int gesture);
    void DisplayDoubleClicked();
    /** Wheel with Ctrl: @p steps nearer, about the point @p about of the widget. */
    void ZoomWanted(int steps, const QPointF& about);
    /** The display is dragged: middle button, or Space and the left one. */
    void Panned(const QPoint& by);
    /** A click with the right button; what is there is selected. */
    void MenuWanted(const QPoint& global);
    /** Space, and nothing was dragged. */
    void PlayWanted();

protected:
    void PaintOverlay(QPainter* painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    const AreaFrame* Find(int id) const;
    int FrameAt(const QPointF& point) const;
    Qt::Edges EdgesAt(const QPointF& point) const;
    QRect Dragged(const QPoint& by, bool snaps);
    int Snapped(int place, bool horizontal) const;
    void FindDifferences();
    void PaintRuler(QPainter* painter, bool horizontal, const QRect& area) const;
    void PaintMeasures(QPainter* painter, const QRect& area) const;

    QVector<AreaFrame> frames;
    int selected = 0;
    int hovered = 0;
    bool showsAll = false;
    QImage compared;
    QVector<QPoint> differences;

    bool showsRulers = false;
    bool spaceHeld = false;
    bool panning = false;
    bool hasPanned = false; // while Space was held
    int wheelTurn = 0;      // that has not made a step yet
    QPoint panFrom;         // of the screen
    bool dragging = false;
    int gesture = 0;
    QPoint grabbed;        // where the mouse took hold, pixels of the display
    QRect before;          // the area then
    Qt::Edges edges;       // which of its edges it took; none for the whole
    QVector<QLine> guides; // that the area has snapped to
};

} // namespace AnimText

#endif
