#include "studio/window/basics/noticebar.h"

#include "studio/window/basics/style.h"

#include <QLabel>

namespace AnimText::studio::window::basics {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setAccessibleName(tr("Notice"));
    setLayout(Arrange(Qt::Vertical, 0, {}));
    parent->setLayout(Arrange(Qt::Vertical, 0, {this, nullptr}));
    hide();
}

void NoticeBar::Set(Kind kind, const QString& text, const QList<Offer>& offers)
{
    if (QWidget* old = notices.take(kind)) {
        old->hide();
        old->deleteLater(); // one of its buttons may have been pressed
    }
    if (!text.isEmpty()) {
        auto* notice = new QWidget(this);
        notice->setAccessibleName(text);
        auto* icon = new QLabel(notice);
        icon->setPixmap(Icon("dialog-warning").pixmap(16, 16));
        auto* words = new QLabel(text, notice);
        words->setForegroundRole(QPalette::ToolTipText);
        words->setWordWrap(true);
        words->setTextInteractionFlags(Qt::TextSelectableByMouse);
        QBoxLayout* row = Arrange(Qt::Horizontal, 2 * grid, {icon, words}, grid);
        row->setStretchFactor(words, 1);
        for (const Offer& offer : offers) {
            auto* button = new QPushButton(offer.first, notice);
            button->setAutoDefault(true); // Return presses it, as Space does
            connect(button, &QPushButton::clicked, this, [this, kind, act = offer.second] {
                Set(kind, QString());
                if (act)
                    act();
            });
            row->addWidget(button);
        }
        notice->setLayout(row);
        layout()->addWidget(notice);
        notices[kind] = notice;
    }
    for (QWidget* notice : notices)
        notice->setVisible(notice == notices.first());
    setVisible(!notices.isEmpty());
}

} // namespace AnimText::studio::window::basics
