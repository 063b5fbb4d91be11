/**
 * @file
 * Files in a folder of the test's own, and programs that run there.
 */
#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/** What a program made of its words. */
struct Outcome
{
    int status = -1; ///< -1 when it was killed
    QByteArray out;
    QByteArray errors;
};

class TestFolder
{
public:
    TestFolder()
    {
        if (!folder.mkpath("."))
            qFatal("the test cannot make %s", qPrintable(folder.path()));
    }
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
    void Remove(const QString& name) const { QFile::remove(Path(name)); }
    /** The files, hidden ones too. */
    QStringList Listing() const { return Entries(QDir::Files); }
    /** The files and folders. */
    QStringList Everything() const { return Entries(QDir::AllEntries | QDir::NoDotAndDotDot); }

#ifdef ANIMTEXT_PROGRAMS
    /** Runs a line of shell in the folder; animtext is the one that was built. */
    Outcome Shell(const QString& line) const
    {
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", ANIMTEXT_PROGRAMS ":" + environment.value("PATH"));
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(folder.path());
        shell.setStandardInputFile(QProcess::nullDevice());
        shell.start("/bin/bash", {"-c", line});
        if (!shell.waitForFinished(300000))
            qFatal("does not end: %s", qPrintable(line));
        return {shell.exitStatus() == QProcess::NormalExit ? shell.exitCode() : -1,
                shell.readAllStandardOutput(), shell.readAllStandardError()};
    }
#endif

private:
    QStringList Entries(QDir::Filters filters) const
    {
        return QDir(folder.path()).entryList(filters | QDir::Hidden, QDir::Name);
    }

    // The tools also read the folder around it, which must not change meanwhile.
    QTemporaryDir outer;
    QDir folder{outer.filePath("folder")};
};
