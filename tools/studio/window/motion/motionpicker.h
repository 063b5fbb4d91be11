/**
 * @file
 * Chooses a motion from thumbnails that move with the user's own text.
 */
#pragma once

#include "studio/model/sign.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace AnimText::studio::window::motion {

class Thumbnails;

class MotionPicker : public QWidget
{
    Q_OBJECT

public:
    explicit MotionPicker(Thumbnails* thumbnails, QWidget* parent = nullptr);

    void Show(const model::SignText& text);
    /** Sets the panel's height; the list uses a share of it unless it was resized by hand. */
    void SetRoom(int points);
    QLineEdit* Search() const { return search; }
    /** All motions; those that are not searched for are hidden. */
    QListWidget* List() const { return list; }

signals:
    void Edited(const QString& what, const QString& merge,
                const AnimText::studio::model::TextChange& change);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Filter();
    void Mark();
    void Choose(const QModelIndex& index);
    void Spread();

    Thumbnails* thumbnails;
    QLineEdit* search = new QLineEdit(this);
    QComboBox* family = new QComboBox(this);
    QListWidget* list = new QListWidget(this);
    QLabel* handle = new QLabel(QStringLiteral("· · · · ·"), this); // resizes the list
    int chosenHeight = 0; // logical pixels, also for the next start; 0 until resized by hand
    int shownRow = -1;
};

} // namespace AnimText::studio::window::motion
