#include "studio/window/motion/motionpicker.h"

#include "player/player.h"
#include "studio/window/basics/style.h"
#include "studio/window/motion/thumbnails.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSettings>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace AnimText::studio::window::motion {
namespace {

constexpr int cardPadding = 4; // logical pixels
constexpr double listShare = 0.45;
const QString heightKey = "motions";

/** @p words from the catalog of motions in the program's language. */
QString MotionWords(const char* words)
{
    return QCoreApplication::translate("Motions", words);
}

/** Paints a card: the picture on black, the title below it. */
class MotionCard : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /** All cards are as wide as the longest title. */
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        int width = thumbnailSize.width();
        for (const scene::Motion& motion : scene::Effects() + scene::Scrolls())
            width =
                qMax(width, option.fontMetrics.horizontalAdvance(MotionWords(motion.title)) + 2);
        return {width + 2 * cardPadding,
                thumbnailSize.height() + 3 * cardPadding + option.fontMetrics.height()};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const bool isChosen = option.state & QStyle::State_Selected;
        const QRect box = option.rect;
        const QColor accent = option.palette.color(QPalette::Highlight);
        if (isChosen)
            painter->fillRect(box, accent);
        else if (option.state & QStyle::State_MouseOver)
            painter->fillRect(box,
                              basics::Mixed(accent, option.palette.color(QPalette::Base), 0.8));
        const QRect screen(box.left() + cardPadding, box.top() + cardPadding, thumbnailSize.width(),
                           thumbnailSize.height());
        painter->fillRect(screen, Qt::black);
        const QImage picture = index.data(MotionPicker::PictureRole).value<QImage>();
        // A picture of an earlier text is faint.
        painter->setOpacity(index.data(MotionPicker::CurrentRole).toBool() ? 1 : 0.4);
        if (!picture.isNull())
            painter->drawImage(screen.topLeft(), picture);
        painter->setOpacity(1);
        const QRect words(screen.left(), screen.bottom() + 1 + cardPadding / 2,
                          box.right() - screen.left(),
                          option.fontMetrics.height() + cardPadding / 2);
        painter->setPen(
            option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(
            words, Qt::AlignVCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, words.width()));
        if (option.state & QStyle::State_HasFocus && !isChosen) {
            painter->setPen(accent);
            painter->drawRect(box.adjusted(0, 0, -1, -1));
        }
    }
};

/** A handle below the list that changes its height. */
class HeightHandle : public QWidget
{
public:
    explicit HeightHandle(MotionPicker* picker)
        : QWidget(picker)
        , picker(picker)
    {
        setFixedHeight(2 * basics::grid);
        setCursor(Qt::SplitVCursor);
        setToolTip(MotionPicker::tr("Drag to resize the list"));
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (event->buttons() & Qt::LeftButton)
            picker->SetListHeight(picker->List()->mapFromGlobal(event->globalPos()).y());
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(basics::Quiet(palette()));
        for (int i = -2; i <= 2; ++i)
            painter.drawPoint(width() / 2 + 4 * i, height() / 2);
    }

private:
    MotionPicker* picker;
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
    for (const scene::Motion& motion : scene::Effects() + scene::Scrolls()) {
        auto* item = new QStandardItem(MotionWords(motion.title));
        item->setEditable(false);
        item->setData(MotionWords(motion.summary), Qt::AccessibleDescriptionRole);
        item->setToolTip(QStringLiteral("%1 · #%2 %3\n%4")
                             .arg(item->text(), QString::number(motion.number),
                                  QLatin1String(motion.name), MotionWords(motion.summary)));
        motions.appendRow(item);
        if (family->findData(QLatin1String(motion.family)) < 0)
            family->addItem(MotionWords(motion.family), QLatin1String(motion.family));
    }
    family->setAccessibleName(tr("Motion family"));
    basics::LetShrink(family);
    filtered.setSourceModel(&motions);
    filtered.setFilterRole(WantedRole);
    filtered.setFilterFixedString(QVariant(true).toString());
    list->setModel(&filtered);
    list->setItemDelegate(new MotionCard(list));
    list->setViewMode(QListView::IconMode);
    list->setResizeMode(QListView::Adjust);
    list->setMovement(QListView::Static);
    list->setUniformItemSizes(true);
    list->setSpacing(0);
    list->setMouseTracking(true);
    list->setFrameShape(QFrame::StyledPanel);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list->setAccessibleName(tr("Motions"));
    list->viewport()->installEventFilter(this);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);

    auto* top = new QHBoxLayout;
    top->setSpacing(basics::grid);
    top->addWidget(search, 1);
    top->addWidget(family);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(basics::grid);
    layout->addLayout(top);
    layout->addWidget(list, 1);
    layout->addWidget(new HeightHandle(this));

    connect(search, &QLineEdit::textChanged, this, &MotionPicker::Filter);
    connect(family, qOverload<int>(&QComboBox::activated), this, &MotionPicker::Filter);
    connect(list, &QListView::clicked, this, &MotionPicker::Choose);
    connect(list, &QListView::activated, this, &MotionPicker::Choose);
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (list->hasFocus())
                    Choose(index);
            });
    chosenHeight = QSettings().value(heightKey, 0).toInt();
    SetRoom(0);
    beat.setInterval(player::tickLength);
    connect(&beat, &QTimer::timeout, this, &MotionPicker::LookAtSight);
    Filter();
}

void MotionPicker::Show(const model::SignText& text)
{
    const scene::Motion* motion = scene::MotionOf(text.node).Row();
    const bool scroll = scene::MotionOf(text.node).IsScroll();
    shownRow = motion ? (scroll ? scene::Effects().size() : 0) + motion->number : -1;
    const QModelIndex index = filtered.mapFromSource(motions.index(shownRow, 0));
    if (index.isValid())
        list->setCurrentIndex(index);
    if (thumbnails)
        thumbnails->SetText(text);
}

void MotionPicker::SetRoom(int points)
{
    const int rows = 3 * (thumbnailSize.height() + 28);
    list->setFixedHeight(chosenHeight > 0 ? chosenHeight : qMax(rows, int(points * listShare)));
}

void MotionPicker::SetListHeight(int points)
{
    chosenHeight = qBound(thumbnailSize.height() + 28, points, 2000);
    QSettings().setValue(heightKey, chosenHeight);
    SetRoom(0);
}

void MotionPicker::Filter()
{
    const QList<scene::Motion> all = scene::Effects() + scene::Scrolls();
    for (int row = 0; row < all.size(); ++row) {
        const scene::Motion& motion = all.at(row);
        const bool isOfFamily =
            family->currentIndex() == 0 || family->currentData() == QLatin1String(motion.family);
        motions.item(row)->setData(isOfFamily && scene::Matches(motion, search->text()),
                                   WantedRole);
    }
    list->setCurrentIndex(filtered.mapFromSource(motions.index(shownRow, 0)));
}

void MotionPicker::Choose(const QModelIndex& index)
{
    const int row = filtered.mapToSource(index).row();
    const int effects = scene::Effects().size();
    if (row >= 0 && row != shownRow)
        emit Chosen(row >= effects, row >= effects ? row - effects : row);
}

void MotionPicker::showEvent(QShowEvent*)
{
    if (thumbnails)
        beat.start();
}

void MotionPicker::hideEvent(QHideEvent*)
{
    beat.stop();
}

/** Advances the visible motions by one tick; the others cost nothing. */
void MotionPicker::LookAtSight()
{
    if (list->visibleRegion().isEmpty() || window()->isMinimized())
        return;
    ++tick;
    for (int row = 0; row < filtered.rowCount(); ++row) {
        const QModelIndex index = filtered.index(row, 0);
        if (!list->viewport()->visibleRegion().intersects(list->visualRect(index)))
            continue;
        const int motion = filtered.mapToSource(index).row();
        filtered.setData(index, thumbnails->Picture(motion, tick), PictureRole);
        filtered.setData(index, thumbnails->IsCurrent(motion), CurrentRole);
    }
}

/** Spreads the columns over the whole width. */
void MotionPicker::Spread()
{
    QStyleOptionViewItem option;
    option.fontMetrics = list->fontMetrics();
    const QSize card = list->itemDelegate()->sizeHint(option, QModelIndex());
    const int room = list->viewport()->width() - 1;
    list->setGridSize({room / qMax(1, room / card.width()), card.height()});
    // After the cards have been laid out.
    QTimer::singleShot(0, list, [this] { list->scrollTo(list->currentIndex()); });
}

bool MotionPicker::eventFilter(QObject* object, QEvent* event)
{
    if (object == list->viewport() && event->type() == QEvent::Resize)
        Spread();
    if (object == search && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Return) {
            list->setFocus();
            if (!list->currentIndex().isValid())
                list->setCurrentIndex(filtered.index(0, 0));
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace AnimText::studio::window::motion
