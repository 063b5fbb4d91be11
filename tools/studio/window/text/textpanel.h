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
    /** @param gesture identifies changes that are one undo step */
    void Edited(const AnimText::layout::StyledText& text, int gesture);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QLayout* MakeTools();
    QToolButton* MakeFace(const QString& letter, const QKeySequence& key, const QString& name,
                          bool (QFont::*has)() const, void (QFont::*set)(bool));
    void FillColors();
    void Restyle(const std::function<void(layout::StyleRun*)>& change, int drag = -1);
    void ShowStyle();
    QTextEdit::ExtraSelection MarkOf(const layout::UnseenCharacter& character) const;
    void ShowNotes(const model::SignText& text);
    void UseOtherFonts();
    void Tell();

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
    int gesture = 0;
    int styling = -1;     // gesture of a style's drag; negative for none
    bool filling = false; // the fields are following the cursor
};

} // namespace AnimText::studio::window::text

Q_DECLARE_METATYPE(AnimText::layout::StyledText)
