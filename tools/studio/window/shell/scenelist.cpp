#include "studio/window/shell/scenelist.h"

#include "studio/window/basics/style.h"

#include <QDropEvent>

#include <climits>

namespace AnimText::studio::window::shell {
namespace {

constexpr int idRole = Qt::UserRole;       // id of a text; 0 in the other rows
constexpr int pageRole = Qt::UserRole + 1; // number of a page; negative for the display

int IdOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, idRole).toInt() : 0;
}

int PageOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, pageRole).toInt() : -1;
}

QString TitleOf(const model::SignText& text)
{
    return text.Title().isEmpty() ? SceneList::tr("(empty text)") : text.Title();
}

} // namespace

SceneList::SceneList(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setIndentation(3 * basics::grid);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setDragDropMode(QAbstractItemView::InternalMove);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setEditTriggers(QAbstractItemView::DoubleClicked);
    setAccessibleName(tr("Pages and texts"));
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item)
            emit Selected(PageOf(item), IdOf(item));
    });
    connect(this, &QTreeWidget::itemChanged, this, [this](const QTreeWidgetItem* item) {
        if (IdOf(item) != 0)
            emit Renamed(IdOf(item), item->text(0).simplified());
    });
}

QString SceneList::PageTitle(const model::Sign& sign, int page)
{
    for (const model::SignText& text : sign.texts) {
        if (text.page == page)
            return tr("Page %1 · %2").arg(QString::number(page + 1), TitleOf(text));
    }
    return tr("Page %1").arg(page + 1);
}

void SceneList::Show(const model::Sign& sign)
{
    const QSignalBlocker blocker(this);
    QVector<QPair<int, int>> wanted;
    for (const model::SignText& text : sign.texts)
        wanted.append({text.page, text.id});
    if (wanted != shown || topLevelItemCount() == 0) {
        shown = wanted;
        Rebuild();
    }
    topLevelItem(0)->setText(
        0, tr("Display %1 × %2").arg(sign.display.width()).arg(sign.display.height()));
    for (const model::SignText& text : sign.texts) {
        QTreeWidgetItem* item = Find(text.id);
        item->setText(0, TitleOf(text));
        item->parent()->setText(0, PageTitle(sign, text.page));
    }
}

void SceneList::Rebuild()
{
    const int current = IdOf(currentItem());
    const int currentPage = PageOfRow();
    const int first = currentPage < 0 ? 0 : IdOf(currentItem()->child(0)); // of that page
    clear();
    const auto add = [](QTreeWidgetItem* parent, int page, int id, Qt::ItemFlags flags) {
        auto* item = new QTreeWidgetItem(parent);
        item->setData(0, pageRole, page);
        item->setData(0, idRole, id);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | flags);
        return item;
    };
    QTreeWidgetItem* page = add(invisibleRootItem(), -1, 0, {});
    for (const QPair<int, int>& text : shown) {
        if (text.first != PageOf(page)) {
            page = add(invisibleRootItem(), text.first, 0,
                       Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
            page->setForeground(0, basics::Quiet(palette()));
        }
        add(page, text.first, text.second, Qt::ItemIsDragEnabled | Qt::ItemIsEditable);
    }
    expandAll();
    const QTreeWidgetItem* kept = first == 0 ? nullptr : Find(first);
    // The display stands above the pages.
    setCurrentItem(kept ? kept->parent()
                        : topLevelItem(qMin(currentPage + 1, topLevelItemCount() - 1)));
    Select(current);
}

QTreeWidgetItem* SceneList::Find(int id)
{
    QTreeWidgetItemIterator item(this);
    while (*item && IdOf(*item) != id)
        ++item;
    return *item;
}

void SceneList::Select(int id)
{
    if (id == 0 && PageOfRow() >= 0)
        return; // the page itself is selected
    const QSignalBlocker blocker(this);
    if (QTreeWidgetItem* item = Find(id))
        setCurrentItem(item);
}

int SceneList::PageOfRow() const
{
    return IdOf(currentItem()) == 0 ? PageOf(currentItem()) : -1;
}

void SceneList::Rename(int id)
{
    editItem(Find(id));
}

/** Moves no row itself: the sign is changed, which then updates the rows. */
void SceneList::dropEvent(QDropEvent* event)
{
    const QTreeWidgetItem* moved = currentItem();
    QTreeWidgetItem* under = itemAt(event->pos());
    event->setDropAction(Qt::IgnoreAction); // Qt removes rows that were moved
    event->accept();
    setState(QAbstractItemView::NoState);
    const bool isPage = IdOf(moved) == 0;
    if (isPage && PageOf(moved) < 0)
        return;
    const bool isText = IdOf(under) != 0;
    const bool below = under && event->pos().y() > visualItemRect(under).center().y();
    const int page = under ? PageOf(under) : topLevelItemCount() - 1; // below all rows: a new one
    if (isPage)
        emit PageDropped(PageOf(moved), qMax(0, page + (isText || below ? 1 : 0)));
    else if (isText)
        emit TextDropped(IdOf(moved), page, under->parent()->indexOfChild(under) + (below ? 1 : 0));
    else if (under && !below && page > 0) // above a page's row is the end of the page before it
        emit TextDropped(IdOf(moved), page - 1, INT_MAX);
    else
        emit TextDropped(IdOf(moved), qMax(0, page), 0);
}

} // namespace AnimText::studio::window::shell
