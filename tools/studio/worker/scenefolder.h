/**
 * @file
 * A temporary folder with the data files of the scenes that workers play.
 */
#pragma once

#include "files/wholefile.h"
#include "studio/model/sign.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QMutex>
#include <QTemporaryDir>

namespace AnimText::studio::worker {

/** Thread-safe. Removes files that no layout needs any more. */
class SceneFolder
{
    Q_DECLARE_TR_FUNCTIONS(SceneFolder)

public:
    /**
     * Writes the data files of @p sign and returns its scene for a file in this folder.
     * @param page negative for all pages
     * @param error why it failed, and the scene is empty; unchanged on success
     */
    scene::Scene Put(const model::Sign& sign, int page, QString* error);

private:
    struct Written
    {
        std::weak_ptr<const model::Layout> layout;
        QMap<QString, QString> files; // names by their keys in a scene
    };

    const QString place = QDir::tempPath(); // parent of the folder
    QTemporaryDir folder{files::TemporaryName()};
    QMutex mutex;
    QHash<const model::Layout*, Written> written;
    int next = 0;
};

} // namespace AnimText::studio::worker
