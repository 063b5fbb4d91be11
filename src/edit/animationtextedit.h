#ifndef ANIMATIONTEXTEDIT_H
#define ANIMATIONTEXTEDIT_H

#include "plugin/export.h"

#include <QTextEdit>

class QMimeData;

namespace Lw {
namespace HNodeAnimationText {

/**
 * The editor in which a person types a node's text. What is pasted or dropped arrives as plain text
 * in the editor's own font, current family and current background, never with foreign styling.
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
