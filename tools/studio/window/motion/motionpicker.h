/**
 * @file
 * Where a motion is chosen: each one moves, with the user's own text.
 */
#ifndef ANIMTEXT_MOTIONPICKER_H
#define ANIMTEXT_MOTIONPICKER_H

#include "studio/model/sign.h"
#include "studio/window/motion/motionmodel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QTimer>

namespace AnimText {

class Thumbnails;

class MotionPicker : public QWidget
{
    Q_OBJECT

public:
    /** @param thumbnails moves the motions that are in sight; null for names alone */
    explicit MotionPicker(Thumbnails* thumbnails, QWidget* parent = nullptr);

    void Show(const SignText& text);
    /** Room of the panel that it is in: the list takes a share of it unless it has been dragged. */
    void SetRoom(int points);
    /** Of the list; kept from one start to the next. */
    void SetListHeight(int points);
    /** The search field, and the list. */
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
    MotionModel* motions;
    QSortFilterProxyModel* filtered;
    QLineEdit* search;
    QComboBox* family;
    QListView* list;
    QTimer beat;
    int chosenHeight = 0; // points; 0 until it has been dragged
    int shownRow = -1;
    int tick = 0;
};

} // namespace AnimText

#endif
