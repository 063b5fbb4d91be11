/**
 * @file
 * A film of the sign, made by a process of its own.
 */
#ifndef ANIMTEXT_EXPORTING_H
#define ANIMTEXT_EXPORTING_H

#include <QObject>
#include <QProcess>
#include <QStringList>

namespace AnimText {

/** What "animtext render" is asked for. */
struct ExportWishes
{
    QString output; ///< its ending tells the format; with a slash at its end a folder of PNGs
    int scale = 1;
    bool schedule = false;
    bool transparent = false;
    bool lossless = false;
    int first = 0;    ///< picture that the film begins with
    int last = -1;    ///< that it ends with; negative for the last one
    double lamps = 0; ///< shows pixels as lamps, so many of their diameters apart; 0 for squares

    /** Whether "animtext render" makes the same. */
    bool HasCommand() const { return lamps <= 0; }
};

/** The options of "animtext render" for @p wishes, the output among them. */
QStringList RenderOptions(const ExportWishes& wishes);
/** The whole command for a shell. */
QString RenderCommandLine(const QString& scene, const ExportWishes& wishes);

/** The process that makes the film; its words are --export SCENE and those options. */
int ExportMain(int argc, char** argv);

/** The studio's end of it. */
class Export : public QObject
{
    Q_OBJECT

public:
    explicit Export(QObject* parent = nullptr);
    /** Breaks off. */
    ~Export() override;

    void Start(const QString& plugin, const QString& scene, const ExportWishes& wishes);
    bool IsRunning() const { return process.state() != QProcess::NotRunning; }
    /** What there was of the film goes; Ended() follows. */
    void Cancel();

signals:
    /** @param all 0 while it is not known */
    void Progress(qint64 done, qint64 all);
    /** @param error one line; empty when the film is there */
    void Ended(const QString& error, bool cancelled);

private:
    void Read();
    void Finish();

    QProcess process;
    QString error;
    bool cancelled = false;
};

} // namespace AnimText

#endif
