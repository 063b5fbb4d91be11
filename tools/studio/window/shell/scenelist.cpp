#include "studio/window/shell/scenelist.h"

#include "studio/window/basics/style.h"

#include <QContextMenuEvent>
#include <QDropEvent>

namespace AnimText {
namespace {

constexpr int idRole = Qt::UserRole;       // id of a text; 0 for the display
constexpr int pageRole = Qt::UserRole + 1; // number of a page, in its row

QString TitleOf(const SignText& text)
{
    return text.Title().isEmpty() ? SceneList::tr("(empty text)") : text.Title();
}

QString DisplayTitle(const QSize& size)
{
    return SceneList::tr("Display %1 × %2").arg(size.width()).arg(size.height());
}

bool IsPage(const QTreeWidgetItem* item)
{
    return item && item->data(0, pageRole).isValid();
}

} // namespace

SceneList::SceneList(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setIndentation(3 * grid);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setDragDropMode(QAbstractItemView::InternalMove);
    setEditTriggers(QAbstractItemView::DoubleClicked);
    setAccessibleName(tr("Pages and texts"));
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (IsPage(item))
            emit PageSelected(item->data(0, pageRole).toInt());
        else if (item)
            emit Selected(item->data(0, idRole).toInt());
    });
    connect(this, &QTreeWidget::itemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item->data(0, idRole).toInt() != 0)
            emit Renamed(item->data(0, idRole).toInt(), item->text(0).simplified());
    });
}

QString SceneList::PageTitle(const Sign& sign, int page)
{
    for (const SignText& text : sign.texts) {
        if (text.page == page)
            return tr("Page %1 · %2").arg(QString::number(page + 1), TitleOf(text));
    }
    return tr("Page %1").arg(page + 1);
}

void SceneList::Show(const Sign& sign)
{
    const QSignalBlocker blocker(this);
    QVector<QPair<int, int>> wanted;
    for (const SignText& text : sign.texts)
        wanted.append({text.page, text.id});
    if (wanted != shown || topLevelItemCount() == 0) {
        shown = wanted;
        Rebuild(sign);
        return;
    }
    topLevelItem(0)->setText(0, DisplayTitle(sign.display));
    for (const SignText& text : sign.texts) {
        QTreeWidgetItem* item = Find(text.id);
        item->setText(0, TitleOf(text));
        if (item->parent()->child(0) == item)
            item->parent()->setText(0, PageTitle(sign, text.page));
    }
}

void SceneList::Rebuild(const Sign& sign)
{
    const int current = currentItem() ? currentItem()->data(0, idRole).toInt() : 0;
    clear();
    auto* display = new QTreeWidgetItem(this, {DisplayTitle(sign.display)});
    display->setData(0, idRole, 0);
    display->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    QTreeWidgetItem* page = nullptr;
    int number = -1;
    for (const SignText& text : sign.texts) {
        if (text.page != number) {
            number = text.page;
            page = new QTreeWidgetItem(this, {PageTitle(sign, number)});
            page->setData(0, pageRole, number);
            page->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                           Qt::ItemIsDropEnabled);
            page->setForeground(0, Quiet(palette()));
        }
        auto* item = new QTreeWidgetItem(page, {TitleOf(text)});
        item->setData(0, idRole, text.id);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                       Qt::ItemIsEditable);
    }
    expandAll();
    Select(current);
}

QTreeWidgetItem* SceneList::Find(int id) const
{
    for (int page = 0; page < topLevelItemCount(); ++page) {
        QTreeWidgetItem* top = topLevelItem(page);
        if (id == 0 && !IsPage(top))
            return top;
        for (int i = 0; i < top->childCount(); ++i) {
            if (top->child(i)->data(0, idRole).toInt() == id)
                return top->child(i);
        }
    }
    return nullptr;
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
    return IsPage(currentItem()) ? currentItem()->data(0, pageRole).toInt() : -1;
}

void SceneList::Rename(int id)
{
    if (QTreeWidgetItem* item = Find(id))
        editItem(item);
}

/** Changes the sign, which then updates the rows; moves no row itself. */
void SceneList::dropEvent(QDropEvent* event)
{
    const QTreeWidgetItem* moved = currentItem();
    const QTreeWidgetItem* under = itemAt(event->pos());
    event->setDropAction(Qt::CopyAction); // a move would remove the row
    event->accept();
    setState(QAbstractItemView::NoState);
    if (!moved || moved == topLevelItem(0))
        return;
    const bool below = under && event->pos().y() > visualItemRect(under).center().y();
    const int pages = topLevelItemCount() - 1;
    int page = pages; // below all rows: a new page
    int place = 0;
    if (IsPage(under)) {
        // Above a page's row is the end of the page before it.
        page = under->data(0, pageRole).toInt();
        place = 0;
        if (!below && page > 0 && !IsPage(moved)) {
            --page;
            place = topLevelItem(1 + page)->childCount();
        }
    } else if (under && under->parent()) {
        page = under->parent()->data(0, pageRole).toInt();
        place =
            under->parent()->indexOfChild(const_cast<QTreeWidgetItem*>(under)) + (below ? 1 : 0);
    } else if (under) {
        page = 0;
    }
    // Queued, because rows must not be replaced during the drag.
    if (IsPage(moved)) {
        const bool behind = under && (below || !IsPage(under)) && under != topLevelItem(0);
        const int from = moved->data(0, pageRole).toInt();
        const int to = page + (behind ? 1 : 0);
        QMetaObject::invokeMethod(
            this, [this, from, to] { emit PageDropped(from, to); }, Qt::QueuedConnection);
    } else {
        const int id = moved->data(0, idRole).toInt();
        QMetaObject::invokeMethod(
            this, [this, id, page, place] { emit TextDropped(id, page, place); },
            Qt::QueuedConnection);
    }
}

void SceneList::contextMenuEvent(QContextMenuEvent* event)
{
    emit MenuWanted(event->globalPos());
}

} // namespace AnimText
