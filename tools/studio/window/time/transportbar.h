/**
 * @file
 * The playback buttons, the current time, and the planned and actual times.
 */
#pragma once

#include "studio/window/time/playback.h"
#include "studio/worker/timing.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include <functional>

namespace AnimText::studio::window::time {

class TransportBar : public QWidget
{
    Q_OBJECT

public:
    explicit TransportBar(Playback* playback, QWidget* parent = nullptr);

    /** Shows the times of @p text; @p all, with those of page and all pages, is the tooltip. */
    void ShowEnds(const worker::TextTime* text, const QString& all);
    /** Whether all pages play as on the host; otherwise only the current page plays. */
    bool IsSchedule() const { return what->currentIndex() == 1; }

signals:
    void ScheduleChanged(bool schedule);
    void LoopToggled();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* Make(const QString& icon, const QString& name, const QString& key,
                      const std::function<void()>& act);
    void ShowTime();
    void ShowPace();

    Playback* playback;
    QList<QToolButton*> spare; // hidden in a narrow window
    QToolButton* play;
    QToolButton* loop;
    QLabel* time = new QLabel(this);
    QLabel* ends;
    QComboBox* what = new QComboBox(this);
};

/** The planned and actual time, as in "planned 12.5 s · needs 12.9 s · 0.4 s lost". */
QString EndsInWords(const worker::TextTime& text);

/** The planned and actual time of texts that play at the same time, together. */
worker::TextTime SideBySide(const QVector<worker::TextTime>& texts);

} // namespace AnimText::studio::window::time
