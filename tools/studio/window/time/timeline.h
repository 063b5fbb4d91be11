/**
 * @file
 * The timeline: a row per text with its pages and its end, and the current tick.
 */
#pragma once

#include "studio/window/time/playback.h"
#include "studio/worker/timing.h"

#include <QAbstractScrollArea>

#include <set>

namespace AnimText::studio::window::time {

/** A text and its times. */
struct TimelineRow
{
    int id = 0;
    QString title;
    int plays = 1; ///< those after the first are drawn as repeats
    worker::TextTime time;
};

class Timeline : public QAbstractScrollArea
{
    Q_OBJECT

public:
    Timeline(Playback* playback, QWidget* parent = nullptr);

    /** @param ticks the sign's length */
    void SetRows(const QVector<TimelineRow>& texts, int ticks);
    /** Marks the rows as those of an earlier state, until there are others. */
    void MarkStale();
    /** Zooms in by @p zoom, 1 to 64, relative to the whole time; the tick at @p x stays in place.
     */
    void SetZoom(double zoom, double x);
    double Zoom() const { return zoom; }
    void SetSelected(int id);

    /** The next mark after @p tick, or the previous one: where a page begins or is complete. */
    int NextMark(int tick) const;
    int PreviousMark(int tick) const;
    /** First and last tick of the page at @p tick, with its hold; all ticks if there is none. */
    QPair<int, int> PageAt(int tick) const;

    QSize sizeHint() const override;

    /** Converts ticks to x coordinates of the viewport and back. */
    double XOf(double tick) const;
    int TickAt(double x) const;

signals:
    void Selected(int id);
    /** The context menu was requested; the text of its row is selected. */
    void MenuWanted(const QPoint& global);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void PaintRuler(QPainter* painter) const;
    void PaintRow(QPainter* painter, const TimelineRow& row, const QRect& rect) const;
    enum Phase { Entrance, Hold, Cut };
    double Room() const;
    void PaintLegend(QPainter* painter) const;
    void Fill(QPainter* painter, const QRectF& rect, Phase phase) const;
    const TimelineRow* RowAt(const QPoint& point) const;
    QString Describe(const QPoint& point) const;
    int Ticks() const;
    std::set<int> Marks() const;
    void Adjust();

    Playback* playback;
    QVector<TimelineRow> rows;
    int signTicks = 1;
    double zoom = 1;
    int selected = 0;
    bool stale = false;
    bool marking = false; // a range is being selected
    int markFrom = 0;
};

} // namespace AnimText::studio::window::time
