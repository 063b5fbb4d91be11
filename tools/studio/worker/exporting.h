/**
 * @file
 * A film of the sign, made by "animtext render".
 */
#pragma once

#include <QObject>
#include <QProcess>

namespace AnimText::studio::worker {

/** The options of "animtext render" that the studio offers. */
struct ExportSettings
{
    QString output; ///< its ending chooses the format; with a slash at its end a folder of PNGs
    int scale = 1;
    bool schedule = false;
    bool transparent = false;
    bool lossless = false;
    int first = 0;    ///< first picture of the film
    int last = -1;    ///< last picture; negative for the end of the play
    double pitch = 0; ///< round LEDs, that many LED diameters apart; 0 for square pixels
};

/** The whole command for a shell. */
QString RenderCommandLine(const QString& scene, const ExportSettings& settings);

/** Runs the program. */
class Export : public QObject
{
    Q_OBJECT

public:
    Export();
    /** Cancels. */
    ~Export() override;

    /** Makes a film of what the window shows of @p scene, whatever mistakes there are in it. */
    void Start(const QString& plugin, const QString& scene, const ExportSettings& settings);
    bool IsRunning() const { return process.state() != QProcess::NotRunning; }
    /** Nothing is left of the film; Ended() follows. */
    void Cancel();

signals:
    /** @param total 0 while it is not known; @param stage as the program calls it */
    void Progress(qint64 done, qint64 total, const QString& stage);
    /** @param error one line; empty when the film is there */
    void Ended(const QString& error, bool canceled);

private:
    void ReadProgress();
    void ReadErrors();
    void Finish();
    QString Complaint() const;

    QProcess process;
    QString scene;
    QByteArray complaints;
    bool canceled = false;
};

} // namespace AnimText::studio::worker
