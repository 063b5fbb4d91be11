/**
 * @file
 * Lists the problems that validation has found, with buttons to fix them.
 */
#pragma once

#include "studio/window/form/attributeform.h"

#include <QScrollArea>

namespace AnimText::studio::window::findings {

class FindingsList : public QScrollArea
{
    Q_OBJECT

public:
    explicit FindingsList(QWidget* parent = nullptr);

    void Show(const QList<validate::Finding>& findings, const model::Sign& sign);
    /** The findings about the text @p id. */
    QList<validate::Finding> Of(int id) const;
    int Count() const { return rows.size(); }
    /** Applies the fix of that row, if it has one. */
    void ApplyFix(int index);

signals:
    void Selected(int id);
    /** Follows Selected() with its text. */
    void Edited(const QString& what, const QString& merge,
                const AnimText::studio::model::TextChange& change);
    void CountChanged(int count);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /** A way to fix a finding; without a change if none is known. */
    struct Fix
    {
        QString words;
        model::TextChange change;
    };
    struct Row
    {
        validate::Finding finding;
        int id = 0; // id of the text; 0 for none
        Fix fix;
        QString words;
        QString why;
    };

    /** The fix for @p finding on a display of that size. */
    static Fix FixFor(const validate::Finding& finding, const QSize& display);
    QWidget* MakeRow(int index);

    QBoxLayout* list;
    QList<Row> rows;
};

} // namespace AnimText::studio::window::findings
