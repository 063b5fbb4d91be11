/**
 * @file
 * The sign's display, on which the areas of its texts can be dragged.
 */
#pragma once

#include "live/pictureview.h"

#include <QRect>
#include <QVector>

namespace AnimText::studio::window::display {

/** An area on the display. */
struct AreaFrame
{
    int id = 0; ///< id of its text
    QRect rect; ///< pixels of the display
};

class DisplayView : public live::PictureView
{
    Q_OBJECT

public:
    explicit DisplayView(QWidget* parent = nullptr);

    /**
     * @param areas from bottom to top
     * @param chosen id of the selected text; 0 for none
     */
    void SetFrames(const QVector<AreaFrame>& areas, int chosen);
    /** Frames all areas, or only the selected one and the one under the mouse. */
    void SetShowsFrames(bool all);
    /** Shows rulers in display pixels at the visible edges, always or only while dragging. */
    void SetShowsRulers(bool always);
    /** Marks the pixels that differ from @p other; a null image ends this. */
    void SetCompared(const QImage& other);
    /** Number of pixels that differ. */
    int Differences() const { return differences.size(); }

    /** Handles Alt+arrow, which moves the selected area, and Alt+Shift+arrow, which resizes it. */
    bool HandleAreaKey(int key, Qt::KeyboardModifiers modifiers);

signals:
    void Selected(int id);
    /** @param gesture identifies the changes of one drag, or of the keys while Alt is held */
    void AreaChanged(int id, const QRect& rect, int gesture);
    void DisplayDoubleClicked();
    /** Ctrl+wheel: zoom in by @p steps around the point @p about of the widget. */
    void ZoomWanted(int steps, const QPointF& about);
    /** The display was dragged with the middle button, or with Space and the left one. */
    void Panned(const QPoint& by);
    /** The context menu was requested; the text under the mouse is selected. */
    void MenuWanted(const QPoint& global);
    /** Space was pressed and released without dragging. */
    void PlayWanted();

protected:
    void PaintOverlay(QPainter* painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    const AreaFrame* Find(int id) const;
    int FrameAt(const QPointF& point) const;
    Qt::Edges EdgesAt(const QPointF& point) const;
    QPair<int, int> Dragged(int begin, int end, bool horizontal, int by, bool snaps);
    int Snapped(int place, bool horizontal);
    void PaintRuler(QPainter* painter, bool horizontal, const QRect& area) const;

    QVector<AreaFrame> frames;
    int selected = 0;
    int hovered = 0;
    bool showsAll = false;
    QVector<QPoint> differences;

    bool showsRulers = false;
    bool spaceHeld = false;
    bool panning = false;
    bool hasPanned = false; // since Space was pressed
    int wheelTurn = 0;      // rest that is less than a step
    QPoint panFrom;         // screen position
    bool dragging = false;
    int gesture = 0;
    QPoint grabbed;        // display pixel where the drag began
    QRect before;          // the area when the drag began
    Qt::Edges edges;       // edges that are dragged; none moves the area
    QVector<QLine> guides; // lines that the area has snapped to
};

} // namespace AnimText::studio::window::display
