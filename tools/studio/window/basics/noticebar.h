/**
 * @file
 * A line above the display that tells what has happened and offers what can be done about it.
 */
#ifndef ANIMTEXT_NOTICEBAR_H
#define ANIMTEXT_NOTICEBAR_H

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QPair>
#include <QPushButton>

#include <functional>

namespace AnimText {

/**
 * Shows one notice at a time, the one of the first kind that there is, over the upper edge of its
 * parent, so that nothing moves when it comes and goes.
 */
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    enum Kind { Leaving, Recovery, Disk, Save, Trouble };

    using Offer = QPair<QString, std::function<void()>>; ///< words on a button and what it does

    explicit NoticeBar(QWidget* parent = nullptr);

    /** An empty @p text takes the notice back. */
    void Set(Kind kind, const QString& text, const QList<Offer>& offers = {});
    QString Text() const { return words->text(); }
    /** The buttons of what is shown. */
    QList<QPushButton*> Offers() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Notice
    {
        QString text;
        QList<Offer> offers;
    };

    void Refresh();
    void Place();

    QMap<Kind, Notice> notices;
    QLabel* icon;
    QLabel* words;
    QHBoxLayout* buttons;
};

} // namespace AnimText

#endif
