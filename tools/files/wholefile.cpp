#include "files/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace AnimText::files {

namespace {

/** Marks unfinished files of this machine; processes of other machines cannot be checked. */
QString Mark()
{
    return QStringLiteral("@%1.unfinished").arg(QSysInfo::machineHostName());
}

bool IsRunning(qint64 process)
{
    return ::kill(pid_t(process), 0) == 0 || errno == EPERM;
}

void Sweep(const QDir& folder)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\.(\\d+)%1\\.\\w{6}$").arg(QRegularExpression::escape(Mark())));
    const QStringList names = folder.entryList(
        {".*" + Mark() + ".*"}, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        const auto match = pattern.match(name);
        if (!match.hasMatch() || IsRunning(match.captured(1).toLongLong()))
            continue;
        const QString path = folder.filePath(name);
        // In a shared folder, other users can choose such a name, too.
        if (QFileInfo(path).ownerId() != geteuid())
            continue;
        if (!QFile::remove(path))
            QDir(path).removeRecursively();
    }
}

} // namespace

QString SystemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString WriteProtection(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat there = {};
    if (stat(name.constData(), &there) != 0)
        return SystemError();
    // The system would let root write everything, and owners of a folder replace its files.
    const mode_t needed = there.st_uid == geteuid() ? S_IWUSR : mode_t(S_IWUSR | S_IWGRP | S_IWOTH);
    if ((there.st_mode & needed) == 0)
        return "it is write-protected; chmod u+w allows writing";
    if (faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0)
        return QStringLiteral("it is write-protected: %1").arg(SystemError());
    return QString();
}

QString FindTarget(const QString& path)
{
    const QString target = QFileInfo(RealPath(path)).absoluteFilePath();
    struct stat there = {};
    QString obstacle;
    if (stat(QFile::encodeName(target).constData(), &there) != 0)
        obstacle = errno == ENOENT ? QString() : SystemError();
    else if (!S_ISREG(there.st_mode))
        obstacle = S_ISDIR(there.st_mode) ? "it is a folder" : "it is not a regular file";
    else
        obstacle = WriteProtection(target);
    FailUnless(obstacle.isEmpty(), CannotWrite(path, obstacle));
    return target;
}

QString CannotWrite(const QString& path, const QString& problem)
{
    return QStringLiteral("%1 cannot be written: %2").arg(path, problem);
}

QString Shortened(const QString& name, int most)
{
    int length = name.size();
    while (length > 0 && (QFile::encodeName(name.left(length)).size() > most ||
                          name.at(length - 1).isHighSurrogate()))
        --length;
    return name.left(length);
}

QString UnfinishedName(const QString& path)
{
    const QFileInfo info(path);
    Sweep(info.absoluteDir());
    const QString end =
        QLatin1Char('.') + QString::number(QCoreApplication::applicationPid()) + Mark() + ".XXXXXX";
    const QString around = "..old"; // a leading dot; the suffix of a replaced folder
    const int room = longestName - QFile::encodeName(around + end).size();
    return info.absolutePath() + "/." + Shortened(info.fileName(), room) + end;
}

void MakeFolder(const QString& path)
{
    // QDir::mkpath() does not report the reason.
    std::error_code problem;
    std::filesystem::create_directories(QFile::encodeName(QDir::cleanPath(path)).toStdString(),
                                        problem);
    FailUnless(!problem, QStringLiteral("cannot create the folder %1: %2")
                             .arg(path, QString::fromLocal8Bit(problem.message().c_str())));
}

QString TemporaryName()
{
    // If TMPDIR is not a folder, QDir::tempPath() is empty and Qt would make folders in /.
    const QString place = QFile::decodeName(qgetenv("TMPDIR"));
    return QDir(place.isEmpty() ? "/tmp" : place)
        .absoluteFilePath(QCoreApplication::applicationName() + "-XXXXXX");
}

void CheckMade(const QTemporaryDir& folder)
{
    FailUnless(
        folder.isValid(),
        QStringLiteral("cannot create a temporary folder in %1: %2; set TMPDIR to another folder")
            .arg(QFileInfo(TemporaryName()).path(), folder.errorString()));
}

QByteArray ReadAtMost(QFile* file, qint64 most)
{
    QByteArray bytes;
    for (QByteArray more = "-"; !more.isEmpty() && bytes.size() < most; bytes += more)
        more = file->read(most - bytes.size());
    return bytes;
}

QString WriteAll(QFile* file, const QByteArray& content)
{
    // When the disk fills up, write() writes a part, and only the next call returns the reason.
    // QFile does not make that call.
    qint64 done = 0;
    while (done < content.size()) {
        const qint64 written =
            ::write(file->handle(), content.constData() + done, size_t(content.size() - done));
        if (written < 0 && errno != EINTR)
            return SystemError();
        done += qMax<qint64>(0, written);
    }
    return QString();
}

void WriteWhole(const QString& path, const QByteArray& content)
{
    const QString target = FindTarget(path);
    QTemporaryFile file(UnfinishedName(target));
    const QString problem = file.open() ? WriteAll(&file, content) : file.errorString();
    FailUnless(problem.isEmpty(), CannotWrite(path, problem));
    PutInPlace(file.fileName(), target, 0666);
    file.setAutoRemove(false);
}

QString RealPath(const QString& path)
{
    constexpr int mostLinks = 40; // the kernel's limit
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < mostLinks; ++links)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

void PutInPlace(const QString& from, const QString& to, unsigned mode)
{
    const QByteArray name = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    const mode_t mask = umask(0);
    umask(mask);
    struct stat before = {};
    const bool replaces = stat(target.constData(), &before) == 0;
    // With delayed or remote writing, fsync() is what reports a full disk.
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC);
    const bool whole = file >= 0 && fsync(file) == 0 &&
                       fchmod(file, replaces ? before.st_mode & 07777 : mode & ~mask) == 0 &&
                       std::rename(name.constData(), target.constData()) == 0;
    const QString problem = SystemError();
    if (file >= 0)
        close(file);
    FailUnless(whole, CannotWrite(to, problem));
}

} // namespace AnimText::files
