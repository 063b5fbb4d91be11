/**
 * @file
 * Lays out texts in a thread, so that long ones do not block the window.
 */
#pragma once

#include "studio/model/sign.h"

#include <QCache>
#include <QMap>
#include <QObject>
#include <QThreadPool>

namespace AnimText::studio::model {

class LayoutQueue : public QObject
{
    Q_OBJECT

public:
    LayoutQueue();
    /** Waits for the text that is being laid out. */
    ~LayoutQueue() override;

    void Remember(const std::shared_ptr<const Layout>& layout);
    /** Forgets the layout of @p text, so that it is made again. */
    void Forget(const SignText& text) { made.remove(text.layoutKey); }
    /**
     * The layout of @p text if it was made recently; otherwise null, and Made() follows unless the
     * text is asked for again.
     */
    std::shared_ptr<const Layout> Ask(const SignText& text);

signals:
    void Made(std::shared_ptr<const AnimText::studio::model::Layout> layout);

private:
    void Next();
    void Take(const std::shared_ptr<const Layout>& layout);

    QThreadPool pool;
    QMap<int, SignText> waiting;                            // by their ids
    QCache<QByteArray, std::shared_ptr<const Layout>> made; // cost in bytes
    QByteArray current;                                     // key of the running layout
};

} // namespace AnimText::studio::model
