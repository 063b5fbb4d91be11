/**
 * @file
 * What an integrator looks at: the device's calls of a tick, calls that fail, and another plugin
 * library beside the first.
 */
#ifndef ANIMTEXT_INTEGRATORVIEW_H
#define ANIMTEXT_INTEGRATORVIEW_H

#include "studio/worker/rehearsal.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QToolButton>

namespace AnimText {

class IntegratorView : public QWidget
{
    Q_OBJECT

public:
    explicit IntegratorView(QWidget* parent = nullptr);

    /** Calls of the device that are to fail: operations and which of their calls. */
    QVector<QPair<qint32, qint32>> Faults() const { return faults; }
    /** Lets the @p nth call of @p operation fail, beside the others. */
    void AddFault(int operation, int nth);
    /** The device's calls of @p tick, a line of JSON each. */
    void ShowCalls(int tick, const QByteArray& calls);
    /** How many pixels differ from those of the other library; negative when there is none. */
    void ShowDifferences(int pixels);
    QString CallsText() const { return calls->toPlainText(); }
    void SetLibrary(const QString& path);

signals:
    void FaultsChanged();
    /** @param path of another library; empty for none */
    void LibraryChosen(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void ShowFaults();
    void ChooseLibrary();

    QVector<QPair<qint32, qint32>> faults;
    QPlainTextEdit* calls;
    QComboBox* operation;
    QSpinBox* nth;
    QLabel* failing;
    QToolButton* clear;
    QToolButton* library;
    QToolButton* noLibrary;
    QLabel* differing;
};

} // namespace AnimText

#endif
