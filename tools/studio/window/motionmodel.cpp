#include "studio/window/motionmodel.h"

#include <QCoreApplication>

#include <algorithm>

namespace AnimText {

QString TitleOf(const Motion& motion)
{
    // What is seen, for operations are named after what they were meant to do.
    static const char* const effects[]{
        QT_TRANSLATE_NOOP("Motions", "Fly to the left"),
        QT_TRANSLATE_NOOP("Motions", "Fly to the right"),
        QT_TRANSLATE_NOOP("Motions", "Rise one by one"),
        QT_TRANSLATE_NOOP("Motions", "Drop one by one"),
        QT_TRANSLATE_NOOP("Motions", "Typewriter"),
        QT_TRANSLATE_NOOP("Motions", "Wave"),
        QT_TRANSLATE_NOOP("Motions", "Sway"),
        QT_TRANSLATE_NOOP("Motions", "Pulse"),
        QT_TRANSLATE_NOOP("Motions", "Tremble"),
        QT_TRANSLATE_NOOP("Motions", "Grow one by one"),
        QT_TRANSLATE_NOOP("Motions", "Shrink one by one"),
        QT_TRANSLATE_NOOP("Motions", "Spin about the middle"),
        QT_TRANSLATE_NOOP("Motions", "Roll in"),
        QT_TRANSLATE_NOOP("Motions", "Spin about the baseline"),
        QT_TRANSLATE_NOOP("Motions", "Flip upright"),
        QT_TRANSLATE_NOOP("Motions", "Swell in turn"),
        QT_TRANSLATE_NOOP("Motions", "Drop in turn"),
        QT_TRANSLATE_NOOP("Motions", "Drop and bounce"),
        QT_TRANSLATE_NOOP("Motions", "Widen along a slant"),
        QT_TRANSLATE_NOOP("Motions", "Frog uncovers"),
        QT_TRANSLATE_NOOP("Motions", "Frog drops"),
        QT_TRANSLATE_NOOP("Motions", "Widen to the right"),
        QT_TRANSLATE_NOOP("Motions", "Slide along a slant"),
        QT_TRANSLATE_NOOP("Motions", "Climb again and again"),
        QT_TRANSLATE_NOOP("Motions", "Grow from both ends"),
        QT_TRANSLATE_NOOP("Motions", "Turn the row"),
        QT_TRANSLATE_NOOP("Motions", "Gather and flip"),
        QT_TRANSLATE_NOOP("Motions", "Gather and spin"),
        QT_TRANSLATE_NOOP("Motions", "Pulse the page"),
        QT_TRANSLATE_NOOP("Motions", "Rock"),
    };
    static const char* const scrolls[]{
        QT_TRANSLATE_NOOP("Motions", "Scroll left"),
        QT_TRANSLATE_NOOP("Motions", "Scroll right"),
        QT_TRANSLATE_NOOP("Motions", "Scroll up"),
        QT_TRANSLATE_NOOP("Motions", "Scroll down"),
    };
    const bool scroll = std::any_of(Scrolls().begin(), Scrolls().end(), [&](const Motion& other) {
        return qstrcmp(other.name, motion.name) == 0;
    });
    return TranslatedMotion(QLatin1String((scroll ? scrolls : effects)[motion.number]));
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
        return QStringLiteral("%1 · %2\n%3")
            .arg(TitleOf(motion), QLatin1String(motion.name),
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
