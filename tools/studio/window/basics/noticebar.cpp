#include "studio/window/basics/noticebar.h"

#include "studio/window/basics/style.h"

namespace AnimText::studio::window::basics {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    words->setForegroundRole(QPalette::ToolTipText);
    words->setWordWrap(true);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* icon = new QLabel(this);
    icon->setPixmap(Icon("dialog-warning").pixmap(16, 16));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * grid, grid, 2 * grid, grid);
    layout->setSpacing(2 * grid);
    layout->addWidget(icon);
    layout->addWidget(words, 1);
    buttons->setSpacing(grid);
    layout->addLayout(buttons);
    setAccessibleName(tr("Notice"));
    auto* over = new QVBoxLayout(parent);
    over->setContentsMargins(0, 0, 0, 0);
    over->addWidget(this);
    over->addStretch(1);
    hide();
}

void NoticeBar::Set(Kind kind, const QString& text, const QList<Offer>& offers)
{
    if (text.isEmpty())
        notices.remove(kind);
    else
        notices[kind] = {text, offers};
    Refresh();
}

QList<QPushButton*> NoticeBar::Offers() const
{
    QList<QPushButton*> shown;
    for (int i = 0; i < buttons->count(); ++i)
        shown.append(static_cast<QPushButton*>(buttons->itemAt(i)->widget()));
    return shown;
}

void NoticeBar::Refresh()
{
    while (QLayoutItem* item = buttons->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    setVisible(!notices.isEmpty());
    words->setText(notices.isEmpty() ? QString() : notices.first().text);
    const QList<Offer> offers = notices.isEmpty() ? QList<Offer>() : notices.first().offers;
    for (const Offer& offer : offers) {
        auto* button = new QPushButton(offer.first, this);
        button->setAutoDefault(true); // Return presses it, as Space does
        connect(button, &QPushButton::clicked, this,
                [this, kind = notices.firstKey(), act = offer.second] {
                    Set(kind, QString());
                    if (act)
                        act();
                });
        buttons->addWidget(button);
    }
}

} // namespace AnimText::studio::window::basics
