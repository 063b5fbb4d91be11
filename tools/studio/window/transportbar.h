/**
 * @file
 * The keys of a player, the time, and the ends that are told and that are real.
 */
#ifndef ANIMTEXT_TRANSPORTBAR_H
#define ANIMTEXT_TRANSPORTBAR_H

#include "studio/window/playback.h"
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

    /** @param text the text whose ends are told; null for none */
    void ShowEnds(const TextTime* text);
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

/** "told 12.5 s · really 12.9 s · 0.4 s cut off", or what there is to say. */
QString EndsInWords(const TextTime& text);

} // namespace AnimText

#endif
