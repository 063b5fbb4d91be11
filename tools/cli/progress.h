/**
 * @file
 * A bar on the terminal for work that takes a while.
 */
#ifndef ANIMTEXT_PROGRESS_H
#define ANIMTEXT_PROGRESS_H

#include <QElapsedTimer>
#include <QString>

namespace AnimText {

/** Draws on standard error, if that is a terminal, once the work has taken a second. */
class Progress
{
public:
    /** @param what is going on, e.g. "rendering"; @param total steps, 0 when nobody knows */
    Progress(const QString& what, qint64 total);
    /** Wipes the bar away. */
    ~Progress();

    void Show(qint64 done);

private:
    Q_DISABLE_COPY(Progress)

    QString what;
    qint64 total;
    QElapsedTimer sinceStart;
    qint64 lastDrawn = 0;
    bool terminal;
    bool drawn = false;
};

} // namespace AnimText

#endif
