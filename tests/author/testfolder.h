/**
 * @file
 * Files in a folder of the test's own.
 */
#ifndef TESTS_TESTFOLDER_H
#define TESTS_TESTFOLDER_H

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class TestFolder
{
public:
    QString Path(const QString& name) const { return folder.filePath(name); }

    /** @return the path of the file */
    QString Write(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the test cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }
    QByteArray Read(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList Listing() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

private:
    QTemporaryDir folder;
};

#endif
