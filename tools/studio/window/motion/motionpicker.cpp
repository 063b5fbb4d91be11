#include "studio/window/motion/motionpicker.h"

#include "studio/window/basics/style.h"
#include "studio/window/motion/thumbnails.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSettings>
#include <QStyledItemDelegate>
#include <QTimer>

namespace AnimText::studio::window::motion {
namespace {

constexpr int rowHeight = thumbnailSize.height() + 28; // logical pixels
constexpr double listShare = 0.45;
const QString heightKey = "motions";

/** @p words from the catalog of motions in the program's language. */
QString MotionWords(const char* words)
{
    return QCoreApplication::translate("Motions", words);
}

/** Highlights the whole card, and not only its title. */
class MotionCard : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->showDecorationSelected = true;
        if (option->state & QStyle::State_MouseOver)
            option->backgroundBrush = basics::Mixed(option->palette.color(QPalette::Highlight),
                                                    option->palette.color(QPalette::Base), 0.8);
    }
};

} // namespace

MotionPicker::MotionPicker(Thumbnails* thumbnails, QWidget* parent)
    : QWidget(parent)
    , thumbnails(thumbnails)
{
    search->setPlaceholderText(tr("Search motions"));
    search->setAccessibleName(tr("Search motions"));
    search->setClearButtonEnabled(true);
    search->installEventFilter(this);
    family->addItem(tr("All families"));
    family->setAccessibleName(tr("Motion family"));
    basics::LetShrink(family);
    list->setItemDelegate(new MotionCard(list));
    list->setViewMode(QListView::IconMode);
    list->setResizeMode(QListView::Adjust);
    list->setMovement(QListView::Static);
    list->setIconSize(thumbnailSize);
    list->setMouseTracking(true);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setAccessibleName(tr("Motions"));
    list->viewport()->installEventFilter(this);
    for (const scene::Motion& motion : scene::Effects() + scene::Scrolls()) {
        auto* item = new QListWidgetItem(LitIcon(QImage()), MotionWords(motion.title), list);
        item->setData(Qt::AccessibleDescriptionRole, MotionWords(motion.summary));
        item->setToolTip(QStringLiteral("%1 · #%2 %3\n%4")
                             .arg(item->text(), QString::number(motion.number),
                                  QLatin1String(motion.name), MotionWords(motion.summary)));
        if (family->findData(QLatin1String(motion.family)) < 0)
            family->addItem(MotionWords(motion.family), QLatin1String(motion.family));
    }
    thumbnails->Animate(list, 0, list->count());
    handle->setAlignment(Qt::AlignCenter);
    handle->setFixedHeight(2 * basics::grid);
    handle->setCursor(Qt::SplitVCursor);
    handle->setToolTip(tr("Drag to resize the list"));
    handle->installEventFilter(this);
    basics::SetInk(handle, basics::Quiet(palette()));

    auto* top = basics::Arrange(Qt::Horizontal, basics::grid, {search, family});
    setLayout(basics::Arrange(Qt::Vertical, basics::grid, {top, list, handle}));

    connect(search, &QLineEdit::textChanged, this, &MotionPicker::Filter);
    connect(family, qOverload<int>(&QComboBox::activated), this, &MotionPicker::Filter);
    connect(list, &QListView::clicked, this, &MotionPicker::Choose);
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (list->hasFocus())
                    Choose(index);
            });
    chosenHeight = QSettings().value(heightKey, 0).toInt();
    SetRoom(0);
}

void MotionPicker::Show(const model::SignText& text)
{
    const scene::NodeMotion motion = scene::MotionOf(text.node);
    shownRow = !motion.Row()       ? -1
               : motion.IsScroll() ? scene::Effects().size() + motion.number
                                   : motion.number;
    Mark();
    thumbnails->SetText(text);
}

/** Marks the motion of the text if it is listed. */
void MotionPicker::Mark()
{
    const QListWidgetItem* item = list->item(shownRow);
    list->setCurrentRow(item && !item->isHidden() ? shownRow : -1);
}

void MotionPicker::SetRoom(int points)
{
    list->setFixedHeight(chosenHeight > 0 ? chosenHeight
                                          : qMax(3 * rowHeight, int(points * listShare)));
}

void MotionPicker::Filter()
{
    const QList<scene::Motion> all = scene::Effects() + scene::Scrolls();
    for (int row = 0; row < all.size(); ++row) {
        const scene::Motion& motion = all.at(row);
        const bool isOfFamily =
            family->currentIndex() == 0 || family->currentData() == QLatin1String(motion.family);
        list->item(row)->setHidden(!isOfFamily || !scene::Matches(motion, search->text()));
    }
    Mark();
}

void MotionPicker::Choose(const QModelIndex& index)
{
    if (!index.isValid() || index.row() == shownRow)
        return;
    emit Edited(tr("Motion"), QString(), [next = MotionOfRow(index.row())](model::SignText* text) {
        auto& attributes = text->node.attributes;
        const scene::NodeMotion old = scene::MotionOf(text->node);
        scene::SetMotion(&text->node, next);
        // Entrances and scrolls have separate speeds; keep the one that was set.
        if (attributes.contains(old.SpeedKey()))
            attributes[next.SpeedKey()] = attributes.value(old.SpeedKey());
    });
}

/** Spreads the columns over the whole width. */
void MotionPicker::Spread()
{
    const QSize card(list->sizeHintForColumn(0), list->sizeHintForRow(0) + 2 * basics::grid);
    const int room = list->viewport()->width() - 1;
    list->setGridSize({room / qMax(1, room / card.width()), card.height()});
    // After the cards have been laid out.
    QTimer::singleShot(0, list, [this] { list->scrollTo(list->currentIndex()); });
}

bool MotionPicker::eventFilter(QObject* object, QEvent* event)
{
    if (object == list->viewport() && event->type() == QEvent::Resize)
        Spread();
    if (object == handle && event->type() == QEvent::MouseMove) {
        const QPoint at = static_cast<QMouseEvent*>(event)->globalPos();
        chosenHeight = qBound(rowHeight, list->mapFromGlobal(at).y(), 2000);
        QSettings().setValue(heightKey, chosenHeight);
        SetRoom(0);
    }
    if (object == search && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Return) {
            list->setFocus(); // goes to the first if there is no current one
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace AnimText::studio::window::motion
