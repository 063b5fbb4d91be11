/**
 * @file
 * The studio's end of a worker process.
 */
#ifndef ANIMTEXT_WORKERLINK_H
#define ANIMTEXT_WORKERLINK_H

#include "studio/worker/messages.h"

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>

namespace AnimText {

/**
 * Starts the worker when it is first needed and again when it has crashed or hangs. Lives in a
 * thread of its own, in which its slots must be called; what it tells may go anywhere.
 */
class WorkerLink : public QObject
{
    Q_OBJECT

public:
    enum class Haste { Full, None }; ///< whether it lets other processes go first

    /** @param plugin the library to be loaded; empty for the one beside the program */
    explicit WorkerLink(const QString& plugin, Haste haste = Haste::Full,
                        QObject* parent = nullptr);
    ~WorkerLink() override;

    /** The program that is started with --worker; the running one unless another is named. */
    static void SetProgram(const QString& path);
    static QString Program();

public slots:
    void Start();
    void Load(const AnimText::LoadOrder& order);
    void Play(int from, int to);
    void Measure(const AnimText::LoadOrder& order);
    /** Ends the process; the next order starts another one. */
    void Stop();

signals:
    void Ready(const QString& pluginError);
    void Loaded(quint32 generation, const QString& error);
    void Picture(const AnimText::TickPicture& picture);
    void Measured(quint32 generation, const AnimText::Timing& timing);
    void Idle(quint32 generation);
    /** The process has crashed, or was ended because it answered no more. */
    void Died(const QString& why);

private:
    void Send(const QByteArray& message);
    void Expect();
    void Read();
    void Handle(Message kind, const QByteArray& body);
    void Ended();

    QString plugin;
    Haste haste;
    QProcess* process = nullptr;
    QTimer* patience = nullptr;
    QElapsedTimer silence; // since the last answer or wish
    double workBefore = 0; // processor time of the process then
    QByteArray received;
    QImage lastPicture;
    bool hangs = false;
};

} // namespace AnimText

#endif
