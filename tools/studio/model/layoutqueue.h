/**
 * @file
 * Lays out texts in a thread, so that long ones do not block the window.
 */
#ifndef ANIMTEXT_LAYOUTQUEUE_H
#define ANIMTEXT_LAYOUTQUEUE_H

#include "studio/model/sign.h"

#include <QCache>
#include <QList>
#include <QObject>
#include <QThreadPool>

namespace AnimText {

class LayoutQueue : public QObject
{
    Q_OBJECT

public:
    explicit LayoutQueue(QObject* parent = nullptr);
    /** Waits for the text that is being laid out. */
    ~LayoutQueue() override;

    /** The layout of @p text if it was made recently; otherwise null. */
    std::shared_ptr<const Layout> Find(const SignText& text) const;
    void Remember(const std::shared_ptr<const Layout>& layout);
    /** Forgets the layout of @p text, so that it is made again. */
    void Forget(const SignText& text) { made.remove(text.layoutKey); }
    /** Lays out @p text and emits Made(); replaces a waiting request for the same text. */
    void Ask(const SignText& text);

signals:
    void Made(std::shared_ptr<const AnimText::Layout> layout);

private:
    void Next();
    void Take(const std::shared_ptr<const Layout>& layout);

    QThreadPool pool;
    QList<SignText> waiting;
    QCache<QByteArray, std::shared_ptr<const Layout>> made; // cost in bytes
    QByteArray current;                                     // key of the running layout
};

} // namespace AnimText

#endif
