/**
 * @file
 * Reports progress.
 */
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace AnimText::cli {

/**
 * A bar on standard error, if that is a terminal, after one second; or, for other programs, lines
 * such as "12 909 rendering" on standard output.
 */
class Progress
{
public:
    enum class Form { Bar, Lines };

    /** @param what the work, such as "rendering"; @param total steps, or 0 if unknown */
    Progress(const QString& what, qint64 total, Form form = Form::Bar);
    /** Erases the bar. */
    ~Progress();

    /** Throws Failure if nobody reads the lines. */
    void Show(qint64 done);
    /** Erases the bar so that other text can be printed; the next Show() draws it again. */
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

} // namespace AnimText::cli
