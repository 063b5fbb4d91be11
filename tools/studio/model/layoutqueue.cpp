#include "studio/model/layoutqueue.h"

#include <algorithm>

namespace AnimText {
namespace {

constexpr int rememberedBytes = 64 << 20;

} // namespace

LayoutQueue::LayoutQueue(QObject* parent)
    : QObject(parent)
    , made(rememberedBytes)
{
    // One permanent thread: each new thread would load the fonts again.
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
}

LayoutQueue::~LayoutQueue()
{
    pool.waitForDone();
}

std::shared_ptr<const Layout> LayoutQueue::Find(const SignText& text) const
{
    const auto* layout = made.object(text.layoutKey);
    return layout ? *layout : nullptr;
}

void LayoutQueue::Remember(const std::shared_ptr<const Layout>& layout)
{
    made.insert(layout->key, new std::shared_ptr<const Layout>(layout),
                layout->outlines.size() + layout->text.size() * 200 + 1000);
}

void LayoutQueue::Ask(const SignText& text)
{
    const auto same = [&](const SignText& other) { return other.id == text.id; };
    waiting.erase(std::remove_if(waiting.begin(), waiting.end(), same), waiting.end());
    if (text.layoutKey == current)
        return;
    waiting.append(text);
    Next();
}

void LayoutQueue::Next()
{
    if (!current.isEmpty() || waiting.isEmpty())
        return;
    const SignText text = waiting.takeFirst();
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

} // namespace AnimText
