#include "studio/window/text/textpanel.h"

#include "studio/window/basics/style.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QToolTip>

#include <algorithm>

namespace AnimText::studio::window::text {
namespace {

constexpr int pauseLength = 1500; // milliseconds without typing that end an undo step
constexpr int mostShown = 4;      // characters or words

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

/** @p text with its units in other styles. */
layout::StyledText Restyled(const layout::StyledText& text,
                            const std::function<void(int unit, layout::StyleRun* run)>& change)
{
    layout::StyledText styled;
    for (int i = 0; i < text.text.size(); ++i) {
        layout::StyleRun run = text.At(i);
        change(i, &run);
        styled.Append(text.text.mid(i, 1), run);
    }
    return styled;
}

int UnitsOf(const layout::UnseenCharacter& character)
{
    return QChar::requiresSurrogates(character.codePoint) ? 2 : 1;
}

} // namespace

TextPanel::TextPanel(QWidget* parent)
    : QWidget(parent)
{
    auto* room = new QWidget(this);
    auto* below = basics::Arrange(Qt::Horizontal, basics::grid, {notes, otherFont});
    below->setStretchFactor(notes, 1);
    room->setLayout(below);
    // A fixed height, so that the fields below do not jump while typing.
    room->setFixedHeight(qMax(2 * fontMetrics().height(), otherFont->sizeHint().height()));
    setLayout(basics::Arrange(Qt::Vertical, basics::grid, {editor, MakeTools(), room}));
    otherFont->hide();
    connect(otherFont, &QPushButton::clicked, this, &TextPanel::UseOtherFonts);

    editor->setAccessibleName(tr("Text"));
    editor->setPlaceholderText(tr("Type your text"));
    editor->setFixedHeight(88);
    QPalette dark = editor->palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    editor->setPalette(dark);
    editor->viewport()->installEventFilter(this);
    setFocusProxy(editor);

    notes->setWordWrap(true);
    notes->setAlignment(Qt::AlignTop);
    notes->setTextFormat(Qt::PlainText);
    notes->hide();

    pause.setSingleShot(true);
    pause.setInterval(pauseLength);
    connect(&pause, &QTimer::timeout, this, [this] { ++typing; });
    connect(editor, &TextEditor::StepEnded, this, [this] { ++typing; });
    connect(editor, &QTextEdit::textChanged, this, &TextPanel::TakeTyping);
    connect(editor, &QTextEdit::cursorPositionChanged, this, &TextPanel::ShowStyle);
    connect(editor, &QTextEdit::selectionChanged, this, &TextPanel::ShowStyle);
}

QLayout* TextPanel::MakeTools()
{
    family->setAccessibleName(tr("Font"));
    family->setToolTip(tr("Font"));
    family->setFontFilters(QFontComboBox::ScalableFonts);
    family->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    family->setMinimumContentsLength(8);
    size->SetUnit(tr("px"));
    size->SetLimits(4, 2000);
    size->setAccessibleName(tr("Size"));
    size->setToolTip(tr("Font size in pixels on the sign"));
    color = new QToolButton(this);
    color->setAutoRaise(true);
    color->setPopupMode(QToolButton::InstantPopup);
    color->setAccessibleName(tr("Color"));
    color->setToolTip(tr("Color of the selection"));
    FillColors();

    QList<QObject*> items;
    const struct
    {
        QString letter;
        QKeySequence key;
        QString name;
        bool (QFont::*has)() const;
        void (QFont::*set)(bool);
    } kinds[]{
        {tr("B"), QKeySequence::Bold, tr("Bold"), &QFont::bold, &QFont::setBold},
        {tr("I"), QKeySequence::Italic, tr("Italic"), &QFont::italic, &QFont::setItalic},
        {tr("U"), QKeySequence::Underline, tr("Underline"), &QFont::underline,
         &QFont::setUnderline},
    };
    for (const auto& kind : kinds) {
        auto* button = new QToolButton(this);
        button->setText(kind.letter);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFixedWidth(28);
        button->setShortcut(kind.key);
        button->setAccessibleName(kind.name);
        button->setToolTip(
            QStringLiteral("%1 (%2)").arg(kind.name, kind.key.toString(QKeySequence::NativeText)));
        QFont font = button->font();
        (font.*kind.set)(true);
        button->setFont(font);
        connect(button, &QToolButton::clicked, this, [this, set = kind.set](bool on) {
            Restyle([=](layout::StyleRun* run) { (run->font.*set)(on); });
        });
        faces.append({button, kind.has});
        items.append(button);
    }
    connect(family, &QFontComboBox::currentFontChanged, this, [this](const QFont& font) {
        Restyle([&](layout::StyleRun* run) { run->font.setFamily(font.family()); });
    });
    connect(size, &basics::NumberField::NumberChanged, this, [this](int pixels, int drag) {
        Restyle([&](layout::StyleRun* run) { run->font.setPixelSize(pixels); },
                QStringLiteral("size %1").arg(drag));
    });
    items << color << family << size;
    auto* layout = basics::Arrange(Qt::Horizontal, basics::grid / 2, items);
    layout->setStretchFactor(family, 1);
    return layout;
}

void TextPanel::FillColors()
{
    auto* menu = new QMenu(color);
    for (const auto& entry : lampColors) {
        const QColor lamp = entry.first;
        QAction* action = menu->addAction(ColorIcon(lamp), ColorName(lamp));
        connect(action, &QAction::triggered, this,
                [this, lamp] { Restyle([&](layout::StyleRun* run) { run->color = lamp; }); });
    }
    QAction* other = menu->addAction(tr("Other…"));
    connect(other, &QAction::triggered, this, [this] {
        const QColor chosen = QColorDialog::getColor(editor->CurrentStyle().color, this);
        if (chosen.isValid())
            Restyle([&](layout::StyleRun* run) { run->color = chosen; });
    });
    color->setMenu(menu);
}

void TextPanel::Show(const model::SignText* wanted)
{
    setEnabled(wanted != nullptr);
    const model::SignText text = wanted ? *wanted : model::SignText();
    if (text.id != shownId || !(text.source.text == shown)) {
        const int anchor = editor->textCursor().anchor();
        const int position = editor->textCursor().position();
        const QSignalBlocker blocker(editor);
        ++typing;
        shown = text.source.text;
        editor->SetStyled(shown);
        if (text.id == shownId) {
            const int last = shown.text.size();
            QTextCursor cursor = editor->textCursor();
            cursor.setPosition(qMin(anchor, last));
            cursor.setPosition(qMin(position, last), QTextCursor::KeepAnchor);
            editor->setTextCursor(cursor);
        }
        shownId = text.id;
        ShowStyle();
    }
    ShowNotes(text);
}

void TextPanel::BeginTyping()
{
    editor->setFocus();
    editor->selectAll();
}

void TextPanel::ShowStyle()
{
    const QSignalBlocker blocker(family);
    const layout::StyleRun style = editor->CurrentStyle();
    for (const auto& face : faces)
        face.first->setChecked((style.font.*face.second)());
    family->setCurrentFont(QFont(style.font.family()));
    size->ShowNumber(style.font.pixelSize());
    color->setIcon(ColorIcon(style.color));
    color->setToolTip(tr("Color of the selection: %1").arg(ColorName(style.color)));
}

/**
 * Changes the style of the selection or, if nothing is selected, of the whole text.
 * @param merge see Edited()
 */
void TextPanel::Restyle(const std::function<void(layout::StyleRun*)>& change, const QString& merge)
{
    QTextCursor cursor = editor->textCursor();
    const int begin = cursor.hasSelection() ? cursor.selectionStart() : 0;
    const int end = cursor.hasSelection() ? cursor.selectionEnd() : shown.text.size();
    layout::StyledText styled = Restyled(shown, [&](int unit, layout::StyleRun* run) {
        if (unit >= begin && unit < end)
            change(run);
    });
    if (styled.runs.isEmpty()) {
        styled.runs = shown.runs;
        change(&styled.runs.first());
    }
    if (!(styled == shown)) // the present color may be chosen again
        Tell(styled, merge);
}

void TextPanel::TakeTyping()
{
    const layout::StyledText text = editor->Styled();
    if (text == shown)
        return;
    shown = text;
    pause.start();
    Tell(text, QStringLiteral("typing %1").arg(typing));
}

void TextPanel::Tell(const layout::StyledText& text, const QString& merge)
{
    emit Edited(tr("Text"), merge, [text](model::SignText* edited) { edited->source.text = text; });
}

/** Gives letters without an outline the first font that has one. */
void TextPanel::UseOtherFonts()
{
    QHash<int, QString> found; // font family by unit
    const QStringList families = QFontDatabase().families();
    for (const layout::UnseenCharacter& character : unseen) {
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
        for (int i = 0; family != families.end() && i < UnitsOf(character); ++i)
            found.insert(character.index + i, *family);
    }
    if (found.isEmpty()) {
        notes->setText(notes->text() + QLatin1Char('\n') + tr("No installed font has them."));
        otherFont->hide();
        return;
    }
    const auto change = [&](int unit, layout::StyleRun* run) {
        run->font.setFamily(found.value(unit, run->font.family()));
    };
    Tell(Restyled(shown, change));
}

/** Underlines @p character, which the sign will not show, and says why. */
QTextEdit::ExtraSelection TextPanel::MarkOf(const layout::UnseenCharacter& character) const
{
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(editor->document());
    mark.cursor.setPosition(character.index);
    mark.cursor.setPosition(character.index + UnitsOf(character), QTextCursor::KeepAnchor);
    mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    mark.format.setUnderlineColor(QColor(255, 80, 80));
    const QString why =
        character.missing
            ? tr("Will be missing: neither %1 nor any other installed font has it.")
            : tr("Will be missing: its font has a picture instead of an outline (font: %1).");
    mark.format.setToolTip(why.arg(shown.At(character.index).font.family()));
    return mark;
}

/** Shows below the field what the sign will not show. */
void TextPanel::ShowNotes(const model::SignText& text)
{
    const model::Layout layout = text.IsLaidOut() ? *text.layout : model::Layout();
    unseen = layout.unseen;
    QStringList lines;
    QStringList letters;
    QList<QTextEdit::ExtraSelection> marks;
    for (const layout::UnseenCharacter& character : unseen) {
        marks.append(MarkOf(character));
        letters.append(QString::fromUcs4(&character.codePoint, 1) +
                       QString::asprintf(" (U+%04X)", character.codePoint));
    }
    const auto few = [](const QStringList& words) {
        return QStringList(words.mid(0, mostShown)).join(", ");
    };
    if (!layout.fault.isEmpty())
        lines.append(layout.fault);
    if (!letters.isEmpty())
        lines.append(tr("Not in any font, will be missing: %1").arg(few(letters)));
    if (!layout.tornWords.isEmpty())
        lines.append(tr("Wider than a page, will be split: %1").arg(few(layout.tornWords)));
    if (layout.cutAbove > 0 || layout.cutBelow > 0)
        lines.append(tr("Letters are cut off: %1 px at the top, %2 px at the bottom.")
                         .arg(layout.cutAbove)
                         .arg(layout.cutBelow));
    const QVector<layout::StyleRun>& runs = text.source.text.runs;
    if (std::any_of(runs.begin(), runs.end(),
                    [&](const layout::StyleRun& run) { return run.color != runs.first().color; }))
        lines.append(tr("The sign uses the first character's color for the whole text."));
    otherFont->setVisible(!marks.isEmpty());
    editor->setExtraSelections(marks);
    notes->setText(lines.join(QLatin1Char('\n')));
    notes->setToolTip(notes->text());
    notes->setVisible(!lines.isEmpty());
    basics::SetInk(notes, basics::Warning(palette()));
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

} // namespace AnimText::studio::window::text
