/**
 * @file
 * How far work is that takes a while.
 */
#ifndef ANIMTEXT_PROGRESS_H
#define ANIMTEXT_PROGRESS_H

#include <QElapsedTimer>
#include <QString>

namespace AnimText {

/**
 * A bar on standard error, if that is a terminal, once the work has taken a second; or, for other
 * programs, lines such as "12 909 rendering" on standard output.
 */
class Progress
{
public:
    enum class Form { Bar, Lines };

    /** @param what is going on, e.g. "rendering"; @param total steps, 0 when nobody knows */
    Progress(const QString& what, qint64 total, Form form = Form::Bar);
    /** Wipes the bar away. */
    ~Progress();

    /** Throws Failure when there is nobody to read the lines. */
    void Show(qint64 done);
    /** Makes room for other words on the terminal; the bar comes back. */
    void Wipe();

private:
    Q_DISABLE_COPY(Progress)

    QString what;
    qint64 total;
    QElapsedTimer sinceStart;
    qint64 lastDrawn = 0;
    qint64 lastDone = -1;
    Form form;
    bool terminal;
    bool drawn = false;
};

} // namespace AnimText

#endif
