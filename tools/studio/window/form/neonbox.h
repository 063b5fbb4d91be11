/**
 * @file
 * Chooses the style of a neon background by its moving picture.
 */
#pragma once

#include <QComboBox>
#include <QTimer>

namespace AnimText::studio::window::motion {
class Thumbnails;
}

namespace AnimText::studio::window::form {

/** The data of its items are the styles. */
class NeonBox : public QComboBox
{
    Q_OBJECT

public:
    /** @param thumbnails paints the styles while the list is open; null shows only names */
    explicit NeonBox(motion::Thumbnails* thumbnails, QWidget* parent = nullptr);

    void ShowStyle(int style);
    void showPopup() override;
    void hidePopup() override;

private:
    void ShowPictures();

    motion::Thumbnails* thumbnails;
    QTimer beat;
    int tick = 0;
};

} // namespace AnimText::studio::window::form
