#include "studio/model/layoutqueue.h"

namespace AnimText::studio::model {
namespace {

constexpr int rememberedBytes = 64 << 20;

} // namespace

LayoutQueue::LayoutQueue()
    : made(rememberedBytes)
{
    // One permanent thread: each new thread would load the fonts again.
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
}

LayoutQueue::~LayoutQueue()
{
    pool.waitForDone();
}

void LayoutQueue::Remember(const std::shared_ptr<const Layout>& layout)
{
    made.insert(layout->key, new std::shared_ptr<const Layout>(layout),
                layout->data.value("PathData").size() + layout->text.size() * 200 + 1000);
}

std::shared_ptr<const Layout> LayoutQueue::Ask(const SignText& text)
{
    waiting.remove(text.id);
    if (const auto* known = made.object(text.layoutKey))
        return *known;
    if (text.layoutKey != current) {
        waiting.insert(text.id, text);
        Next();
    }
    return nullptr;
}

void LayoutQueue::Next()
{
    if (!current.isEmpty() || waiting.isEmpty())
        return;
    const SignText text = waiting.take(waiting.firstKey());
    current = text.layoutKey;
    pool.start([this, text] {
        const auto layout = MakeLayout(text);
        QMetaObject::invokeMethod(
            this, [this, layout] { Take(layout); }, Qt::QueuedConnection);
    });
}

void LayoutQueue::Take(const std::shared_ptr<const Layout>& layout)
{
    current.clear();
    Remember(layout);
    emit Made(layout);
    Next();
}

} // namespace AnimText::studio::model
