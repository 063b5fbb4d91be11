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

    explicit Progress(Form form = Form::Bar);
    /** Erases the bar. */
    ~Progress();

    /**
     * Throws Failure if nobody reads the lines.
     * @param what the work, such as "rendering"
     * @param total steps, or 0 if unknown
     */
    void Show(const QString& what, qint64 done, qint64 total = 0);
    /** Erases the bar so that other text can be printed; the next Show() draws it again. */
    void Wipe();

private:
    Q_DISABLE_COPY(Progress)

    QElapsedTimer sinceStart;
    qint64 lastDrawn = 0;
    QString shown;
    Form form;
    bool terminal;
};

} // namespace AnimText::cli
