/**
 * @file
 * The worker: a process without a window that plays scenes with the plugin and sends pictures.
 */
#ifndef ANIMTEXT_WORKERLOOP_H
#define ANIMTEXT_WORKERLOOP_H

#include "studio/worker/messages.h"

#include <memory>

namespace AnimText {

/**
 * Reads requests from standard input and answers on standard output until the input ends. A new
 * request cancels the previous one. A plugin that crashes ends only this process.
 */
class WorkerLoop
{
public:
    /** @param output descriptor for the answers; nothing else may be written to it */
    WorkerLoop(VirtualDispatcher* dispatcher, const QString& pluginPath, int output);

    int Run();

private:
    bool Receive(bool wait);
    void Handle(Message kind, const QByteArray& body);
    void Load(const LoadOrder& order);
    void Measure(const LoadOrder& order);
    bool Read(const LoadOrder& order, Scene* scene, QString* error) const;
    void Restart();
    void Step();
    void SendTick();
    void Send(const QByteArray& bytes);

    VirtualDispatcher* dispatcher;
    QString pluginPath;
    QString pluginError;
    int output;
    bool ended = false;
    QByteArray received;
    Lw::INodePlugin* plugin = nullptr;
    std::unique_ptr<Player> player;
    LoadOrder order;
    Scene scene;
    bool started = false; // the player is at a tick of the ordered scene
    int next = 0;         // the next requested tick
    int last = -1;        // the last requested tick
    int sent = -2;        // the last tick that was sent
    QImage shown;         // picture of that tick
    QByteArray calls;     // device calls of the player's tick
};

} // namespace AnimText

#endif
