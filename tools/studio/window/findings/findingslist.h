/**
 * @file
 * Lists the problems that validation has found, with buttons to fix them.
 */
#ifndef ANIMTEXT_FINDINGSLIST_H
#define ANIMTEXT_FINDINGSLIST_H

#include "studio/window/form/attributeform.h"

#include <QScrollArea>

namespace AnimText {

/** A way to fix a finding; without a change if none is known. */
struct Fix
{
    QString words;
    TextChange change;
};

/** The fix for @p finding about @p text on a display of that size. */
Fix FixFor(const Finding& finding, const SignText& text, const QSize& display);

/** Index of the text that a finding is about, in file order; -1 for none. */
int TextOf(const Finding& finding, const Sign& sign);

class FindingsList : public QScrollArea
{
    Q_OBJECT

public:
    explicit FindingsList(QWidget* parent = nullptr);

    void Show(const QList<Finding>& findings, const Sign& sign);
    int Count() const { return rows.size(); }
    /** Applies the fix of that row, if it has one. */
    void ApplyFix(int index);

signals:
    void Selected(int id);
    /** Follows Selected() with its text. */
    void Edited(const QString& what, const QString& merge, const AnimText::TextChange& change);
    void CountChanged(int count);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Row
    {
        int id = 0; // id of the text; 0 for none
        Fix fix;
        QString words;
        QString why;
        bool isError = false;
    };

    QWidget* MakeRow(int index);

    QVBoxLayout* list;
    QList<Row> rows;
};

} // namespace AnimText

#endif
