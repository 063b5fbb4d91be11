/**
 * @file
 * The worker: a process without a window that plays scenes through the plugin and sends pictures.
 */
#ifndef ANIMTEXT_WORKERLOOP_H
#define ANIMTEXT_WORKERLOOP_H

#include "studio/worker/messages.h"

#include <memory>

namespace AnimText {

/**
 * Reads messages from standard input and answers on standard output, until the input ends. What is
 * wanted later breaks off what is still going on. A plugin that crashes takes this process along,
 * and no more than this.
 */
class WorkerLoop
{
public:
    /** @param output the descriptor for the answers; what else is printed must go elsewhere */
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
    bool started = false; // the player stands at a tick of what was ordered
    int next = 0;         // the next tick whose picture is wanted
    int last = -1;        // and the last one
    int sent = -2;        // the last tick that was sent
    QImage shown;         // its picture
    QByteArray calls;     // of the tick at which the player stands
};

} // namespace AnimText

#endif
