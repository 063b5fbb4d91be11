/**
 * @file
 * A line above the display that reports an event and offers actions.
 */
#pragma once

#include <QFrame>
#include <QMap>
#include <QPair>
#include <QPushButton>

#include <functional>

namespace AnimText::studio::window::basics {

/**
 * Shows one notice at a time, in the order of Kind, over the upper edge of its parent, so that
 * nothing moves when it appears or disappears.
 */
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    /** Failed: what the user has asked for; Trouble: of the playback, while it lasts. */
    enum Kind { Leaving, Disk, Save, Failed, Recovery, Trouble };

    using Offer = QPair<QString, std::function<void()>>; ///< a button's label and action

    /** @param parent without a layout */
    explicit NoticeBar(QWidget* parent);

    /** Shows a notice; an empty @p text removes it. */
    void Set(Kind kind, const QString& text, const QList<Offer>& offers = {});
    QString Text() const { return Shown() ? Shown()->accessibleName() : QString(); }
    /** The buttons of the visible notice. */
    QList<QPushButton*> Offers() const
    {
        return Shown() ? Shown()->findChildren<QPushButton*>() : QList<QPushButton*>();
    }

private:
    QWidget* Shown() const { return notices.isEmpty() ? nullptr : notices.first(); }

    QMap<Kind, QWidget*> notices;
};

} // namespace AnimText::studio::window::basics
