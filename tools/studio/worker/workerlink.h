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
 * Starts the worker when it is needed, and again after a crash or hang. Lives in its own thread, in
 * which its slots must be called; its signals can be received in any thread.
 */
class WorkerLink : public QObject
{
    Q_OBJECT

public:
    enum class Haste { Full, None }; ///< None runs the worker at low priority

    /** @param plugin the plugin library; empty for the one beside the program */
    explicit WorkerLink(const QString& plugin, Haste haste = Haste::Full,
                        QObject* parent = nullptr);
    ~WorkerLink() override;

    /** Sets the program to start with --worker; the default is the running one. */
    static void SetProgram(const QString& path);
    static QString Program();

public slots:
    void Start();
    void Load(const AnimText::LoadOrder& order);
    void Play(int from, int to);
    void Measure(const AnimText::LoadOrder& order);
    /** Ends the process; the next request starts another one. */
    void Stop();

signals:
    void Ready(const QString& pluginError);
    void Loaded(quint32 generation, const QString& error);
    void Picture(const AnimText::TickPicture& picture);
    void Measured(quint32 generation, const AnimText::Timing& timing);
    void Idle(quint32 generation);
    /** The process has crashed, or was terminated because it stopped responding. */
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
    QElapsedTimer silence; // since the last answer or request
    double workBefore = 0; // the process's processor time at that moment
    QByteArray received;
    QImage lastPicture;
    bool hangs = false;
};

} // namespace AnimText

#endif
