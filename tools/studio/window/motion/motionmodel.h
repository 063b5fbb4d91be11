/**
 * @file
 * Every effect and scroll as rows of a model, with the pictures that show them.
 */
#ifndef ANIMTEXT_MOTIONMODEL_H
#define ANIMTEXT_MOTIONMODEL_H

#include "scene/catalogue.h"

#include <QAbstractListModel>
#include <QImage>
#include <QVector>

namespace AnimText {

/** The name of a motion for people, in their language: "Typewriter". */
QString TitleOf(const Motion& motion);

/** @p words out of the catalogue of motions, in the language of the program. */
QString TranslatedMotion(const QString& words);

/** The thirty effects, and behind them the four scrolls. */
class MotionModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { FamilyRole = Qt::UserRole, SummaryRole, PictureRole, CurrentRole };

    explicit MotionModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    const Motion& At(int row) const;
    bool IsScroll(int row) const { return row >= Effects().size(); }
    /** The row of an effect or a scroll; -1 when there is none. */
    int RowOf(bool scroll, int number) const;
    QStringList Families() const;

    void SetPicture(int row, const QImage& picture, bool isCurrent);

private:
    QVector<QPair<QImage, bool>> pictures; // and whether it is of the text as it is now
};

} // namespace AnimText

#endif
