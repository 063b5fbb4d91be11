/**
 * @file
 * Chooses a motion from thumbnails that move with the user's own text.
 */
#pragma once

#include "studio/model/sign.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTimer>

namespace AnimText::studio::window::motion {

class Thumbnails;

class MotionPicker : public QWidget
{
    Q_OBJECT

public:
    enum Role { PictureRole = Qt::UserRole, CurrentRole, WantedRole };

    /** @param thumbnails paints the visible motions; null shows only names */
    explicit MotionPicker(Thumbnails* thumbnails, QWidget* parent = nullptr);

    void Show(const model::SignText& text);
    /** Sets the panel's height; the list uses a share of it unless it was resized by hand. */
    void SetRoom(int points);
    /** Sets the list's height, also for the next start. */
    void SetListHeight(int points);
    QLineEdit* Search() const { return search; }
    QListView* List() const { return list; }

signals:
    void Chosen(bool scroll, int number);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void Filter();
    void Choose(const QModelIndex& index);
    void LookAtSight();
    void Spread();

    Thumbnails* thumbnails;
    QStandardItemModel motions; // the effects, followed by the scrolls
    QSortFilterProxyModel filtered;
    QLineEdit* search = new QLineEdit(this);
    QComboBox* family = new QComboBox(this);
    QListView* list = new QListView(this);
    QTimer beat;
    int chosenHeight = 0; // logical pixels; 0 until resized by hand
    int shownRow = -1;
    int tick = 0;
};

} // namespace AnimText::studio::window::motion
