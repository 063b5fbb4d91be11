/**
 * @file
 * The sign's time as a drawing: a row a text, with its pages, its ends, and where one is.
 */
#ifndef ANIMTEXT_TIMELINE_H
#define ANIMTEXT_TIMELINE_H

#include "studio/window/time/playback.h"
#include "studio/worker/timing.h"

#include <QAbstractScrollArea>
#include <QStringList>

namespace AnimText {

class Timeline : public QAbstractScrollArea
{
    Q_OBJECT

public:
    Timeline(Playback* playback, QWidget* parent = nullptr);

    /**
     * @param ids of the texts, which have the rows of @p timing in this order
     * @param plays how often each plays; runs after the first are shown as repeats
     */
    void SetTiming(const Timing& timing, const QVector<int>& ids, const QStringList& titles,
                   const QVector<int>& plays);
    /** Times longer than all of it would be in the width, 1 .. 64; the tick at @p x stays there. */
    void SetZoom(double zoom, double x);
    double Zoom() const { return zoom; }
    /** Whether the timing is that of an earlier state. */
    void SetStale(bool stale);
    void SetSelected(int id);

    /** The first tick of the page after @p tick, or before it. */
    int NextMark(int tick) const;
    int PreviousMark(int tick) const;
    /** First and last tick of the page at @p tick, with its hold; all of it where there is none. */
    QPair<int, int> PageAt(int tick) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /** From a tick to a place in the viewport and back. */
    double XOf(double tick) const;
    int TickAt(double x) const;

signals:
    void Selected(int id);
    /** A click with the right button; the text of its row is selected. */
    void MenuWanted(const QPoint& global);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void PaintRuler(QPainter* painter) const;
    void PaintRow(QPainter* painter, int row, const QRect& rect) const;
    enum Phase { Entrance, Hold, Cut };
    int FirstRepeat(int row) const;
    double Room() const;
    void PaintLegend(QPainter* painter) const;
    void Fill(QPainter* painter, const QRectF& rect, Phase phase) const;
    QString Describe(const QPoint& point) const;
    int Ticks() const;
    QVector<int> Marks() const;
    void Adjust();

    Playback* playback;
    Timing timing;
    QVector<int> ids;
    QStringList titles;
    QVector<int> plays;
    double zoom = 1;
    int selected = 0;
    bool stale = false;
    bool marking = false; // a range is being drawn
    int markFrom = 0;
};

} // namespace AnimText

#endif
