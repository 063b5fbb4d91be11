#include "edit/animationtextedit.h"

#include <QMimeData>

namespace Lw {
namespace HNodeAnimationText {

AnimationTextEdit::AnimationTextEdit(QWidget* parent)
    : QTextEdit(parent)
{
}

AnimationTextEdit::~AnimationTextEdit() {}

void AnimationTextEdit::insertFromMimeData(const QMimeData* source)
{
    if (!source)
        return;

    QTextEdit styled;
    styled.setFont(font());
    styled.setFontFamily(fontFamily());
    // Without a background textBackgroundColor() returns opaque black, which would make every
    // paste black.
    if (currentCharFormat().background().style() != Qt::NoBrush)
        styled.setTextBackgroundColor(textBackgroundColor());
    styled.setText(source->text());

    QMimeData plain;
    plain.setHtml(styled.document()->toHtml());
    QTextEdit::insertFromMimeData(&plain);
}

} // namespace HNodeAnimationText
} // namespace Lw
