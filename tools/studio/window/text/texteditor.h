/**
 * @file
 * The field for typing a text: one line in which each letter has its own style.
 */
#pragma once

#include "layout/styledtext.h"

#include <QTextEdit>

namespace AnimText::studio::window::text {

/**
 * Pastes text in the style at the cursor. Text from such a field keeps its styles; styles from
 * other programs are pasted only on request.
 */
class TextEditor : public QTextEdit
{
    Q_OBJECT

public:
    explicit TextEditor(QWidget* parent = nullptr);

    /** The whole text. */
    layout::StyledText Styled() const;
    /** Shows the size of the first letter at the reading size, and the others in proportion. */
    void SetStyled(const layout::StyledText& text);
    /** The style of the first selected letter, or of the next one to be typed. */
    layout::StyleRun CurrentStyle() const;
    /** Pastes text with bold, italic, underline, sizes and fonts, but not its colors. */
    void PasteWithStyles();

signals:
    /** Ends an undo step of typing. */
    void StepEnded();

protected:
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Paste(layout::StyledText text);

    layout::StyleRun base; // of the first letter, and of letters without a style
};

} // namespace AnimText::studio::window::text
