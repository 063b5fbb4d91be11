#ifndef ANIMATIONTEXTEDIT_H
#define ANIMATIONTEXTEDIT_H

#include "plugin/export.h"

#include <QTextEdit>

class QMimeData;

namespace Lw {
namespace HNodeAnimationText {

/**
 * The editor for a node's text. Pasted and dropped text becomes plain text in the editor's own
 * font, current family and current background.
 */
class ANIMATIONTEXT_EXPORT AnimationTextEdit : public QTextEdit
{
public:
    explicit AnimationTextEdit(QWidget* parent);
    ~AnimationTextEdit() override;

protected:
    /** @param source null is ignored */
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
