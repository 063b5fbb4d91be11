/**
 * @file
 * A model with a row for every effect and scroll and its moving picture.
 */
#ifndef ANIMTEXT_MOTIONMODEL_H
#define ANIMTEXT_MOTIONMODEL_H

#include "scene/catalog.h"

#include <QAbstractListModel>
#include <QImage>
#include <QVector>

namespace AnimText {

/** The motion's title in the program's language, for example "Typewriter". */
QString TitleOf(const Motion& motion);

/** @p words from the catalog of motions in the program's language. */
QString TranslatedMotion(const QString& words);

/** The thirty effects, followed by the four scrolls. */
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
    /** The row of an effect or a scroll; -1 if there is none. */
    int RowOf(bool scroll, int number) const;
    QStringList Families() const;

    void SetPicture(int row, const QImage& picture, bool isCurrent);

private:
    QVector<QPair<QImage, bool>> pictures; // and whether it shows the present text
};

} // namespace AnimText

#endif
