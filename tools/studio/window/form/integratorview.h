/**
 * @file
 * For integrators: the device calls of a tick, calls that are made to fail, and the comparison
 * with another plugin library.
 */
#pragma once

#include "studio/worker/rehearsal.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QToolButton>

namespace AnimText::studio::window::form {

class IntegratorView : public QWidget
{
    Q_OBJECT

public:
    explicit IntegratorView(QWidget* parent = nullptr);

    /** Device calls to make fail: operation and number of the call. */
    QVector<QPair<qint32, qint32>> Faults() const { return faults; }
    /** Makes call number @p which of the operation @p failed fail, too. */
    void AddFault(int failed, int which)
    {
        SetFaults(faults + QVector<QPair<qint32, qint32>>{{failed, which}});
    }
    /** Shows the device calls of @p tick, one line of JSON each. */
    void ShowCalls(int tick, const QByteArray& calls);
    /** Shows how many pixels differ from the other library; negative if there is none. */
    void ShowDifferences(int pixels);
    QString CallsText() const { return calls->toPlainText(); }
    void SetLibrary(const QString& path);

signals:
    void FaultsChanged();
    /** @param path another library; empty for none */
    void LibraryChosen(const QString& path);

private:
    void SetFaults(const QVector<QPair<qint32, qint32>>& wanted);

    QVector<QPair<qint32, qint32>> faults;
    QPlainTextEdit* calls = new QPlainTextEdit(this);
    QComboBox* operation = new QComboBox(this);
    QSpinBox* nth = new QSpinBox(this);
    QLabel* failing = new QLabel(this);
    QToolButton* clear = new QToolButton(this);
    QToolButton* library = new QToolButton(this);
    QToolButton* noLibrary = new QToolButton(this);
    QLabel* differing = new QLabel(this);
};

} // namespace AnimText::studio::window::form
