/**
 * @file
 * Where a text is written and styled.
 */
#ifndef ANIMTEXT_TEXTPANEL_H
#define ANIMTEXT_TEXTPANEL_H

#include "studio/model/sign.h"
#include "studio/window/basics/numberfield.h"
#include "studio/window/text/texteditor.h"

#include <QFontComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace AnimText {

class TextPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TextPanel(QWidget* parent = nullptr);

    /** Shows @p text; what is being typed stays as long as it is the same. Null for none. */
    void Show(const SignText* text);
    /** Takes the keyboard, with all of the text selected. */
    void BeginTyping();

    TextEditor* Editor() const { return editor; }

signals:
    /** @param gesture the same number for what is typed in one go */
    void Edited(const AnimText::StyledText& text, int gesture);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void MakeTools(QWidget* row);
    QToolButton* MakeTool(const QString& words, const QKeySequence& key, const QString& name);
    void FillColors();
    void Restyle(const std::function<void(StyleRun*)>& change, int drag = -1);
    void ShowStyle();
    void ShowNotes(const SignText& text);
    void UseOtherFonts();
    void Tell();

    TextEditor* editor;
    QFontComboBox* family;
    NumberField* size;
    QToolButton* bold;
    QToolButton* italic;
    QToolButton* underline;
    QToolButton* color;
    QLabel* notes;
    QPushButton* otherFont; // for letters without outlines
    QVector<UnseenCharacter> unseen;
    QTimer pause;
    int shownId = 0;
    StyledText shown;
    StyleRun base;
    int gesture = 0;
    int styling = -1;     // the drag that changes a style; negative for none
    bool filling = false; // the fields change because the cursor did
};

} // namespace AnimText

Q_DECLARE_METATYPE(AnimText::StyledText)

#endif
