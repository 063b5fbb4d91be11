/**
 * @file
 * The panel for writing and styling a text.
 */
#pragma once

#include "studio/model/sign.h"
#include "studio/window/basics/numberfield.h"
#include "studio/window/text/texteditor.h"

#include <QFontComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace AnimText::studio::window::text {

class TextPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TextPanel(QWidget* parent = nullptr);

    /** Shows @p text or, if null, nothing. Keeps the cursor while the text is the same. */
    void Show(const model::SignText* text);
    /** Takes the focus and selects the whole text. */
    void BeginTyping();

    TextEditor* Editor() const { return editor; }

signals:
    /** @param merge consecutive changes with the same value are one undo step */
    void Edited(const QString& what, const QString& merge,
                const AnimText::studio::model::TextChange& change);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QLayout* MakeTools();
    void FillColors();
    void Restyle(const std::function<void(layout::StyleRun*)>& change,
                 const QString& merge = QString());
    void ShowStyle();
    QTextEdit::ExtraSelection MarkOf(const layout::UnseenCharacter& character) const;
    void ShowNotes(const model::SignText& text);
    void UseOtherFonts();
    void TakeTyping();
    void Tell(const layout::StyledText& text, const QString& merge = QString());

    TextEditor* editor = new TextEditor(this);
    QVector<QPair<QToolButton*, bool (QFont::*)() const>> faces; // bold, italic, underline
    QToolButton* color;
    QLabel* notes = new QLabel(this);
    QPushButton* otherFont = new QPushButton(tr("Use another font for these"), this);
    QFontComboBox* family = new QFontComboBox(this);
    basics::NumberField* size = new basics::NumberField(this);
    QList<layout::UnseenCharacter> unseen;
    QTimer pause;
    int shownId = 0;
    layout::StyledText shown;
    int typing = 0; // number of the undo step of what is typed next
};

} // namespace AnimText::studio::window::text
