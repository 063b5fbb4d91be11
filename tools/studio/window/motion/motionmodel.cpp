#include "studio/window/motion/motionmodel.h"

#include <QCoreApplication>

namespace AnimText {

QString TitleOf(const Motion& motion)
{
    return TranslatedMotion(QLatin1String(motion.title));
}

QString TranslatedMotion(const QString& words)
{
    return QCoreApplication::translate("Motions", words.toUtf8());
}

MotionModel::MotionModel(QObject* parent)
    : QAbstractListModel(parent)
    , pictures(Effects().size() + Scrolls().size())
{
}

int MotionModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : pictures.size();
}

const Motion& MotionModel::At(int row) const
{
    return IsScroll(row) ? Scrolls().at(row - Effects().size()) : Effects().at(row);
}

int MotionModel::RowOf(bool scroll, int number) const
{
    const int count = scroll ? Scrolls().size() : Effects().size();
    if (number < 0 || number >= count)
        return -1;
    return scroll ? Effects().size() + number : number;
}

QStringList MotionModel::Families() const
{
    QStringList families;
    for (int row = 0; row < rowCount(); ++row) {
        const QString family = data(index(row), FamilyRole).toString();
        if (!families.contains(family))
            families.append(family);
    }
    return families;
}

QVariant MotionModel::data(const QModelIndex& index, int role) const
{
    const Motion& motion = At(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: return TitleOf(motion);
    case FamilyRole: return QLatin1String(motion.family);
    case SummaryRole:
    case Qt::AccessibleDescriptionRole: return TranslatedMotion(QLatin1String(motion.summary));
    case PictureRole: return pictures.at(index.row()).first;
    case CurrentRole: return pictures.at(index.row()).second;
    case Qt::ToolTipRole:
        return QStringLiteral("%1 · #%2 %3\n%4")
            .arg(TitleOf(motion), QString::number(motion.number), QLatin1String(motion.name),
                 TranslatedMotion(QLatin1String(motion.summary)));
    default: return {};
    }
}

void MotionModel::SetPicture(int row, const QImage& picture, bool isCurrent)
{
    pictures[row] = {picture, isCurrent};
    emit dataChanged(index(row), index(row), {PictureRole, CurrentRole});
}

} // namespace AnimText
