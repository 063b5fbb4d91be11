/**
 * @file
 * The studio's end of a worker process.
 */
#pragma once

#include "studio/worker/messages.h"

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>

namespace AnimText::studio::worker {

/** Seconds of all threads of the process @p id; 0 if there is none. */
double ProcessorTimeOf(qint64 id);

/** Starts the worker when it is needed, and again after a crash or hang. */
class WorkerLink : public QObject
{
    Q_OBJECT

public:
    enum class Haste { Full, None }; ///< None runs the worker at low priority

    /** @param plugin the plugin library; empty for the one beside the program */
    explicit WorkerLink(const QString& plugin, Haste haste = Haste::Full);
    ~WorkerLink() override;

    /** Sets the program to start with --worker; the default is the running one. */
    static void SetProgram(const QString& path);
    static QString Program();

    void Start();
    /** Cancels the previous order. */
    void Send(const Order& order);

signals:
    /** Its picture is never null if it has one. */
    void Answered(const AnimText::studio::worker::Answer& answer);
    /**
     * The process has crashed twice with orders of one generation, or was terminated because it
     * stopped responding.
     */
    void Died(const QString& why);

private:
    void Write();
    void Expect();
    void Read();
    void End(int status, QProcess::ExitStatus how);

    QString plugin;
    Haste haste;
    QProcess process;
    Order order;    // the last one
    int deaths = 0; // with orders of its generation
    QTimer patience;
    QElapsedTimer silence; // since the last answer or request
    double workBefore = 0; // the process's processor time at that moment
    QByteArray received;
    QImage lastPicture;
    bool hangs = false;
};

} // namespace AnimText::studio::worker
