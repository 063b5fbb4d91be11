/**
 * @file
 * A folder of the process's own, in which workers find the data files of what they play.
 */
#ifndef ANIMTEXT_SCENEFOLDER_H
#define ANIMTEXT_SCENEFOLDER_H

#include "files/wholefile.h"
#include "studio/model/sign.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QMutex>
#include <QTemporaryDir>

namespace AnimText {

/** May be used by several threads. Files go when no layout needs them any more. */
class SceneFolder
{
    Q_DECLARE_TR_FUNCTIONS(SceneFolder)

public:
    /**
     * The scene of @p sign for a file in this folder, with its data files written.
     * @param page negative for all pages
     * @param error why that failed, which leaves the scene empty; kept where it succeeds
     */
    Scene Put(const Sign& sign, int page, QString* error);

private:
    struct Written
    {
        std::weak_ptr<const Layout> layout;
        QString name;
    };

    const QString place = QDir::tempPath(); // where the folder is made
    QTemporaryDir folder{TemporaryName()};
    QMutex mutex;
    QHash<const Layout*, Written> written;
    int next = 0;
};

} // namespace AnimText

#endif
