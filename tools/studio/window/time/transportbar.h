/**
 * @file
 * The keys of a player, the time, and the ends that are told and that are real.
 */
#ifndef ANIMTEXT_TRANSPORTBAR_H
#define ANIMTEXT_TRANSPORTBAR_H

#include "studio/window/time/playback.h"
#include "studio/worker/timing.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>
#include <QWidget>

namespace AnimText {

class TransportBar : public QWidget
{
    Q_OBJECT

public:
    explicit TransportBar(Playback* playback, QWidget* parent = nullptr);

    /** @param what times as EndsInWords() has them; @param all those of text, page and program */
    void ShowEnds(const TextTime* text, const QString& all);
    /** Whether all is played as the host does, page by page; else the page that is looked at. */
    bool IsSchedule() const { return what->currentIndex() == 1; }
    void SetSchedule(bool schedule);
    QString EndsText() const { return ends->text(); }

signals:
    void ScheduleChanged(bool schedule);
    void LoopToggled();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* Button(const QString& icon, const QString& name, const QString& key);
    void ShowTime();
    void ShowPace();

    Playback* playback;
    QList<QToolButton*> spare; // hidden where there is no room for them
    QToolButton* play;
    QToolButton* loop;
    QLabel* time;
    QLabel* ends;
    QComboBox* what;
};

/** "planned 12.5 s · needs 12.9 s · 0.4 s lost", or what there is to say. */
QString EndsInWords(const TextTime& text);

/** How many pages would begin after the host has stopped the text. */
int LostPages(const TextTime& text);

/** Texts that play side by side, as one: what is planned and needed for all of them. */
TextTime SideBySide(const QVector<TextTime>& texts);

} // namespace AnimText

#endif
