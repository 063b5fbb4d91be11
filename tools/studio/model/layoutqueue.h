/**
 * @file
 * Lays texts out in a thread of its own, so that long ones keep nobody waiting.
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

    /** The layout that @p text asks for, if it was made lately; else null. */
    std::shared_ptr<const Layout> Find(const SignText& text) const;
    void Remember(const std::shared_ptr<const Layout>& layout);
    /** Lets the layout @p text asks for be made again. */
    void Forget(const SignText& text) { made.remove(text.layoutKey); }
    /** Makes it; an earlier wish for the same text is forgotten. */
    void Ask(const SignText& text);

signals:
    void Made(std::shared_ptr<const AnimText::Layout> layout);

private:
    void Next();
    void Take(const std::shared_ptr<const Layout>& layout);

    QThreadPool pool;
    QList<SignText> waiting;
    QCache<QByteArray, std::shared_ptr<const Layout>> made; // costs are bytes
    QByteArray current;                                     // key of what is being laid out
};

} // namespace AnimText

#endif
