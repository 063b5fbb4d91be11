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

    /** Sets the style of unstyled letters; its size is shown at the reading size. */
    void SetBase(const layout::StyleRun& style) { base = style; }
    /** The whole text. */
    layout::StyledText Styled() const;
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
    void Paste(const layout::StyledText& text);

    layout::StyleRun base;
};

} // namespace AnimText::studio::window::text
