#include "studio/window/form/neonbox.h"

#include "studio/window/basics/style.h"
#include "studio/window/motion/thumbnails.h"

#include "player/player.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyledItemDelegate>

namespace AnimText::studio::window::form {
namespace {

constexpr int borders = 28; // drawn styles; those above show the user's picture
constexpr int rowsInSight = 8;
constexpr QSize fieldIcon{64, 16}; // in the closed field

} // namespace

NeonBox::NeonBox(motion::Thumbnails* thumbnails, QWidget* parent)
    : QComboBox(parent)
    , thumbnails(thumbnails)
{
    for (int style = 1; style <= borders; ++style)
        addItem(tr("Style %1").arg(style), style);
    addItem(tr("Picture"), borders + 1);
    for (int row = 0; row < borders; ++row) // keeps the size when pictures arrive
        setItemData(row, motion::thumbnailSize + QSize(0, basics::grid), Qt::SizeHintRole);
    setMaxVisibleItems(rowsInSight);
    setIconSize(fieldIcon);
    setItemDelegate(new QStyledItemDelegate(this)); // it uses the list's icon size
    view()->setIconSize(motion::thumbnailSize);
    basics::LetShrink(this);
    view()->setMinimumWidth(motion::thumbnailSize.width() +
                            8 * basics::grid + // wider than the field
                            fontMetrics().horizontalAdvance(itemText(borders - 1)) +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    beat.setInterval(player::tickLength);
    connect(&beat, &QTimer::timeout, this, &NeonBox::ShowPictures);
}

void NeonBox::ShowStyle(int style)
{
    setCurrentIndex(qBound(0, style - 1, borders)); // 0 is the first style, too
    // Every number above the borders means a picture; choosing it again keeps the number.
    setItemData(borders, qMax(borders + 1, style));
}

void NeonBox::showPopup()
{
    tick = 0;
    if (thumbnails)
        beat.start();
    QComboBox::showPopup();
}

void NeonBox::hidePopup()
{
    beat.stop();
    QComboBox::hidePopup();
}

void NeonBox::ShowPictures()
{
    ++tick;
    for (int row = 0; row < borders; ++row) {
        const QModelIndex index = model()->index(row, modelColumn(), rootModelIndex());
        const bool isSeen = view()->viewport()->rect().intersects(view()->visualRect(index));
        const QImage picture =
            isSeen ? thumbnails->Picture(motion::neonThumbnails + row + 1, tick) : QImage();
        if (picture.isNull())
            continue;
        QPixmap lit(picture.size());
        lit.fill(Qt::black);
        QPainter(&lit).drawImage(0, 0, picture);
        setItemIcon(row, lit);
    }
}

} // namespace AnimText::studio::window::form
