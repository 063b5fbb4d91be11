#include "studio/window/text/textpanel.h"

#include "studio/window/basics/style.h"
#include "studio/window/text/styledformat.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QRawFont>
#include <QTextBlock>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <algorithm>

namespace AnimText {
namespace {

constexpr int pauseLength = 1500; // milliseconds without typing that end an undo step
constexpr int mostShown = 4;      // characters or words
constexpr int noStyling = -2;     // typing, no style

/** Colors that look good on LEDs. */
const QList<QPair<QColor, const char*>> lampColors{
    {QColor(255, 160, 0), QT_TRANSLATE_NOOP("Colors", "Amber")},
    {QColor(255, 0, 0), QT_TRANSLATE_NOOP("Colors", "Red")},
    {QColor(255, 80, 0), QT_TRANSLATE_NOOP("Colors", "Orange")},
    {QColor(255, 220, 0), QT_TRANSLATE_NOOP("Colors", "Yellow")},
    {QColor(0, 220, 60), QT_TRANSLATE_NOOP("Colors", "Green")},
    {QColor(0, 220, 220), QT_TRANSLATE_NOOP("Colors", "Cyan")},
    {QColor(60, 120, 255), QT_TRANSLATE_NOOP("Colors", "Blue")},
    {QColor(200, 80, 255), QT_TRANSLATE_NOOP("Colors", "Violet")},
    {QColor(255, 120, 200), QT_TRANSLATE_NOOP("Colors", "Pink")},
    {QColor(255, 255, 255), QT_TRANSLATE_NOOP("Colors", "White")},
};

QString ColorName(const QColor& color)
{
    for (const auto& lamp : lampColors) {
        if (lamp.first == color)
            return QCoreApplication::translate("Colors", lamp.second);
    }
    return color.name();
}

QIcon ColorIcon(const QColor& color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(QColor(128, 128, 128)); // a frame that is visible on any palette
    QPainter(&pixmap).fillRect(2, 2, 28, 28, color);
    return pixmap;
}

} // namespace

TextPanel::TextPanel(QWidget* parent)
    : QWidget(parent)
    , editor(new TextEditor(this))
    , notes(new QLabel(this))
    , otherFont(new QPushButton(tr("Use another font for these"), this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid);
    auto* row = new QWidget(this);
    MakeTools(row);
    layout->addWidget(editor);
    layout->addWidget(row);
    // A fixed height, so that the fields below do not jump while typing.
    auto* room = new QWidget(this);
    auto* below = new QHBoxLayout(room);
    below->setContentsMargins(0, 0, 0, 0);
    below->setSpacing(grid);
    below->addWidget(notes, 1, Qt::AlignTop);
    below->addWidget(otherFont, 0, Qt::AlignTop);
    room->setFixedHeight(qMax(2 * fontMetrics().height(), otherFont->sizeHint().height()));
    layout->addWidget(room);
    otherFont->hide();
    connect(otherFont, &QPushButton::clicked, this, &TextPanel::UseOtherFonts);

    editor->setAccessibleName(tr("Text"));
    editor->setPlaceholderText(tr("Type your text"));
    editor->setFixedHeight(88);
    editor->setFrameShape(QFrame::StyledPanel);
    QPalette dark = editor->palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    editor->setPalette(dark);
    editor->viewport()->installEventFilter(this);
    setFocusProxy(editor);

    notes->setWordWrap(true);
    notes->setTextFormat(Qt::PlainText);
    notes->hide();

    pause.setSingleShot(true);
    pause.setInterval(pauseLength);
    connect(&pause, &QTimer::timeout, this, [this] { ++gesture; });
    connect(editor, &TextEditor::StepEnded, this, [this] { ++gesture; });
    connect(editor, &QTextEdit::textChanged, this, &TextPanel::Tell);
    connect(editor, &QTextEdit::cursorPositionChanged, this, &TextPanel::ShowStyle);
    connect(editor, &QTextEdit::selectionChanged, this, &TextPanel::ShowStyle);
}

QToolButton* TextPanel::MakeTool(const QString& words, const QKeySequence& key, const QString& name)
{
    auto* button = new QToolButton(this);
    button->setText(words);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFixedWidth(28);
    button->setShortcut(key);
    button->setAccessibleName(name);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(name, key.toString(QKeySequence::NativeText)));
    return button;
}

void TextPanel::MakeTools(QWidget* row)
{
    family = new QFontComboBox(row);
    family->setAccessibleName(tr("Font"));
    family->setToolTip(tr("Font"));
    family->setFontFilters(QFontComboBox::ScalableFonts);
    family->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    family->setMinimumContentsLength(8);
    size = new NumberField(row);
    size->SetUnit(tr("px"));
    size->SetLimits(4, 2000);
    size->setAccessibleName(tr("Size"));
    size->setToolTip(tr("Font size in pixels on the sign"));
    bold = MakeTool(tr("B"), QKeySequence::Bold, tr("Bold"));
    italic = MakeTool(tr("I"), QKeySequence::Italic, tr("Italic"));
    underline = MakeTool(tr("U"), QKeySequence::Underline, tr("Underline"));
    QFont font = bold->font();
    font.setBold(true);
    bold->setFont(font);
    font.setBold(false);
    font.setItalic(true);
    italic->setFont(font);
    font.setItalic(false);
    font.setUnderline(true);
    underline->setFont(font);
    color = new QToolButton(row);
    color->setAutoRaise(true);
    color->setPopupMode(QToolButton::InstantPopup);
    color->setAccessibleName(tr("Color"));
    color->setToolTip(tr("Color of the selection"));
    FillColors();

    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid / 2);
    layout->addWidget(bold);
    layout->addWidget(italic);
    layout->addWidget(underline);
    layout->addWidget(color);
    layout->addSpacing(grid);
    layout->addWidget(family, 1);
    layout->addWidget(size);

    connect(bold, &QToolButton::clicked, this,
            [this](bool on) { Restyle([on](StyleRun* run) { run->font.setBold(on); }); });
    connect(italic, &QToolButton::clicked, this,
            [this](bool on) { Restyle([on](StyleRun* run) { run->font.setItalic(on); }); });
    connect(underline, &QToolButton::clicked, this,
            [this](bool on) { Restyle([on](StyleRun* run) { run->font.setUnderline(on); }); });
    connect(family, &QFontComboBox::currentFontChanged, this, [this](const QFont& font) {
        if (!filling)
            Restyle([&](StyleRun* run) { run->font.setFamily(font.family()); });
    });
    connect(size, &NumberField::NumberChanged, this, [this](int pixels, int drag) {
        Restyle([&](StyleRun* run) { run->font.setPixelSize(pixels); }, drag);
    });
}

void TextPanel::FillColors()
{
    auto* menu = new QMenu(color);
    for (const auto& entry : lampColors) {
        const QColor lamp = entry.first;
        QAction* action = menu->addAction(ColorIcon(lamp), ColorName(lamp));
        connect(action, &QAction::triggered, this,
                [this, lamp] { Restyle([&](StyleRun* run) { run->color = lamp; }); });
    }
    QAction* other = menu->addAction(tr("Other…"));
    connect(other, &QAction::triggered, this, [this] {
        auto* dialog = new QColorDialog(editor->CurrentStyle().color, this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& chosen) {
            Restyle([&](StyleRun* run) { run->color = chosen; });
        });
        dialog->show();
    });
    color->setMenu(menu);
}

void TextPanel::Show(const SignText* text)
{
    setEnabled(text != nullptr);
    if (!text) {
        filling = true;
        shown = StyledText();
        shownId = 0;
        editor->clear();
        editor->setExtraSelections({});
        notes->hide();
        otherFont->hide();
        filling = false;
        return;
    }
    base = text->source.text.runs.first();
    editor->SetBase(base);
    if (text->id != shownId || !(text->source.text == shown)) {
        const int anchor = editor->textCursor().anchor();
        const int position = editor->textCursor().position();
        filling = true;
        shown = text->source.text;
        Write(shown, editor->document());
        if (text->id == shownId) {
            const int last = shown.text.size();
            QTextCursor cursor = editor->textCursor();
            cursor.setPosition(qMin(anchor, last));
            cursor.setPosition(qMin(position, last), QTextCursor::KeepAnchor);
            editor->setTextCursor(cursor);
        } else {
            ++gesture;
        }
        shownId = text->id;
        filling = false;
        ShowStyle();
    }
    ShowNotes(*text);
}

void TextPanel::BeginTyping()
{
    editor->setFocus();
    editor->selectAll();
}

void TextPanel::ShowStyle()
{
    if (filling)
        return;
    const StyleRun style = editor->CurrentStyle();
    filling = true;
    bold->setChecked(style.font.bold());
    italic->setChecked(style.font.italic());
    underline->setChecked(style.font.underline());
    family->setCurrentFont(QFont(style.font.family()));
    size->ShowNumber(style.font.pixelSize());
    color->setIcon(ColorIcon(style.color));
    color->setToolTip(tr("Color of the selection: %1").arg(ColorName(style.color)));
    filling = false;
}

/**
 * Changes the style of the selection or, if nothing is selected, of the whole text.
 * @param drag identifies changes that are one undo step; negative for a single change
 */
void TextPanel::Restyle(const std::function<void(StyleRun*)>& change, int drag)
{
    if (drag < 0 || drag != styling)
        ++gesture;
    styling = drag;
    QTextCursor cursor = editor->textCursor();
    const int begin = cursor.hasSelection() ? cursor.selectionStart() : 0;
    const int end = cursor.hasSelection() ? cursor.selectionEnd() : shown.text.size();
    StyledText styled;
    styled.sized = shown.sized;
    for (int i = 0; i < shown.text.size(); ++i) {
        StyleRun run = shown.At(i);
        if (i >= begin && i < end)
            change(&run);
        styled.Append(shown.text.mid(i, 1), run);
    }
    if (styled.runs.isEmpty()) {
        styled.runs = shown.runs;
        change(&styled.runs.first());
    }
    emit Edited(styled, gesture);
}

void TextPanel::Tell()
{
    if (filling)
        return;
    const StyledText text = editor->Styled();
    if (text == shown)
        return;
    if (styling != noStyling)
        ++gesture; // a style is a separate undo step
    styling = noStyling;
    shown = text;
    pause.start();
    emit Edited(text, gesture);
}

/** Gives letters without an outline the first font that has one. */
void TextPanel::UseOtherFonts()
{
    QHash<int, QString> found; // font family by index
    const QStringList families = QFontDatabase().families();
    for (const UnseenCharacter& character : unseen) {
        const auto has = [&](const QString& family) {
            QFont font(family);
            font.setStyleStrategy(QFont::NoFontMerging);
            const QRawFont raw = QRawFont::fromFont(font);
            const QVector<quint32> glyphs =
                raw.glyphIndexesForString(QString::fromUcs4(&character.codePoint, 1));
            return !glyphs.isEmpty() && glyphs.first() != 0 &&
                   !raw.pathForGlyph(glyphs.first()).isEmpty();
        };
        const auto family = std::find_if(families.begin(), families.end(), has);
        if (family != families.end())
            found.insert(character.index, *family);
    }
    if (found.isEmpty()) {
        notes->setText(notes->text() + QLatin1Char('\n') + tr("No installed font has them."));
        otherFont->hide();
        return;
    }
    StyledText styled;
    styled.sized = shown.sized;
    for (int i = 0; i < shown.text.size(); ++i) {
        StyleRun run = shown.At(i);
        const bool isSecond = i > 0 && shown.text.at(i).isLowSurrogate();
        if (found.contains(isSecond ? i - 1 : i))
            run.font.setFamily(found.value(isSecond ? i - 1 : i));
        styled.Append(shown.text.mid(i, 1), run);
    }
    ++gesture;
    emit Edited(styled, gesture);
    ++gesture;
}

/** Shows below the field what the sign will not show. */
void TextPanel::ShowNotes(const SignText& text)
{
    QStringList lines;
    QList<QTextEdit::ExtraSelection> marks;
    if (text.IsLaidOut()) {
        const Layout& layout = *text.layout;
        if (!layout.fault.isEmpty())
            lines.append(layout.fault);
        QStringList letters;
        unseen = QVector<UnseenCharacter>(layout.unseen.begin(), layout.unseen.end());
        for (const UnseenCharacter& character : layout.unseen) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = QTextCursor(editor->document());
            const int last = shown.text.size();
            mark.cursor.setPosition(qMin(character.index, last));
            mark.cursor.setPosition(
                qMin(character.index + (QChar::requiresSurrogates(character.codePoint) ? 2 : 1),
                     last),
                QTextCursor::KeepAnchor);
            mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
            mark.format.setUnderlineColor(QColor(255, 80, 80));
            const QString asked = shown.At(character.index).font.family();
            mark.format.setToolTip(
                (character.missing
                     ? tr("Will be missing: neither %1 nor any other installed font has it.")
                     : tr("Will be missing: its font has a picture instead of an outline (font: "
                          "%1)."))
                    .arg(asked));
            marks.append(mark);
            letters.append(QStringLiteral("%1 (U+%2)")
                               .arg(QString::fromUcs4(&character.codePoint, 1),
                                    QString::number(character.codePoint, 16)
                                        .toUpper()
                                        .rightJustified(4, QLatin1Char('0'))));
        }
        if (!letters.isEmpty())
            lines.append(
                tr("Not in any font, will be missing: %1")
                    .arg(QStringList(letters.mid(0, mostShown)).join(QStringLiteral(", "))));
        if (!layout.tornWords.isEmpty())
            lines.append(
                tr("Wider than a page, will be split: %1")
                    .arg(
                        QStringList(layout.tornWords.mid(0, mostShown)).join(QLatin1String(", "))));
        if (layout.cutAbove > 0 || layout.cutBelow > 0)
            lines.append(tr("Letters are cut off: %1 px at the top, %2 px at the bottom.")
                             .arg(layout.cutAbove)
                             .arg(layout.cutBelow));
    }
    const QVector<StyleRun>& runs = text.source.text.runs;
    for (const StyleRun& run : runs) {
        if (run.color != runs.first().color) {
            lines.append(tr("The sign uses the first character's color for the whole text."));
            break;
        }
    }
    otherFont->setVisible(!marks.isEmpty());
    editor->setExtraSelections(marks);
    notes->setText(lines.join(QLatin1Char('\n')));
    notes->setToolTip(notes->text());
    notes->setVisible(!lines.isEmpty());
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Warning(palette()));
    notes->setPalette(colors);
}

bool TextPanel::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && object == editor->viewport()) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int position = editor->cursorForPosition(help->pos()).position();
        for (const QTextEdit::ExtraSelection& mark : editor->extraSelections()) {
            if (position >= mark.cursor.selectionStart() &&
                position <= mark.cursor.selectionEnd()) {
                QToolTip::showText(help->globalPos(), mark.format.toolTip(), editor);
                return true;
            }
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace AnimText
