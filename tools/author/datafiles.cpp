#include "author/datafiles.h"

#include "files/wholefile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMap>
#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <filesystem>

namespace AnimText::author {
namespace {

const int digestLength = 16;             // hexadecimal digits; enough that collisions do not occur
const int mostFiles = 5000;              // to search
const qint64 mostBytes = 256 << 20;      // of all files
const qint64 largestSearched = 64 << 20; // bytes; 100,000 characters take 20 MB

/** Captures the digest and the suffix. */
const QRegularExpression& OurNames()
{
    static const QRegularExpression names(
        QStringLiteral("\\.([0-9a-f]{%1})\\.(path|descent)$").arg(digestLength),
        QRegularExpression::DotMatchesEverythingOption);
    return names;
}

QString NameDigest(const QByteArray& content)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().left(digestLength));
}

/**
 * What every file has in it that names the data file @p name: its end, as far as nothing writes it
 * in another way, in lower case. Only JSON can write it in other ways, by escapes.
 */
QByteArray EndOf(const QString& name)
{
    static const QRegularExpression end("[a-z0-9_-]*\\.[^.]*\\.[^.]*$");
    return end.match(name.toLower()).captured().toLatin1();
}

/** Whether a file is one of our data files or a film, which name no files. */
bool IsData(const QByteArray& start, qint64 size)
{
    const bool isSerialized =
        start.size() > 4 && qFromBigEndian<quint32>(start.constData()) == size - 4;
    return isSerialized || start.startsWith("\x89PNG") || start.startsWith("GIF8") ||
           start.startsWith("\xff\xd8\xff") || start.startsWith("\x1a\x45\xdf\xa3") ||
           (start.startsWith("RIFF") && start.mid(8, 4) == "WEBP") || start.mid(4, 4) == "ftyp";
}

/**
 * Whether it starts like an object or a list of strings, lists or objects, but not like a
 * "[section]" of a settings file. Skips the zero bytes of UTF-16.
 */
bool LooksLikeJson(const QByteArray& content)
{
    QByteArray start;
    for (auto byte = content.begin(); byte != content.end() && start.size() < 2; ++byte) {
        if (uchar(*byte) > ' ' && uchar(*byte) < 0x80)
            start += *byte;
    }
    return start.startsWith('{') || start == "[{" || start == "[[" || start == "[\"";
}

/** Whether Qt leaves out a file of @p folder, as its name is not UTF-8. */
bool HasOddNames(const QDir& folder)
{
    std::error_code failure;
    const std::filesystem::directory_iterator files(folder.path().toStdString(), failure);
    return std::any_of(begin(files), end(files), [](const auto& file) {
        const std::string name = file.path().string();
        return QString::fromStdString(name).toStdString() != name;
    });
}

bool IsJson(const QByteArray& content)
{
    return !QJsonDocument::fromJson(content).isNull();
}

/** Searches files for the names of data files. */
struct Search
{
    QMap<QString, QByteArray> sought{}; // names that were not found yet, and their ends
    int files = 0;
    qint64 bytes = 0;

    /** @return the first file that cannot be searched, with the reason, or empty */
    QString LookInto(const QDir& folder)
    {
        QString doubt;
        if (!folder.isReadable())
            doubt = QStringLiteral("%1: it cannot be read").arg(folder.path());
        else if (HasOddNames(folder))
            doubt = QStringLiteral("%1: it has a file whose name is not UTF-8").arg(folder.path());
        for (const QFileInfo& file :
             folder.entryInfoList(QDir::Files | QDir::System | QDir::Hidden)) {
            const QString why = LookAt(file);
            if (!why.isEmpty() && doubt.isEmpty())
                doubt = QStringLiteral("%1: %2").arg(file.filePath(), why);
        }
        return doubt;
    }

    QString LookAt(const QFileInfo& info)
    {
        if (info.isSymLink())
            SearchText(info.symLinkTarget().toUtf8());
        if (!info.isFile())
            return info.exists() ? "it is not a regular file" : "it is a broken link";
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return file.errorString();
        if (IsData(file.peek(16), file.size()))
            return QString();
        if (++files > mostFiles || file.size() > largestSearched || bytes + file.size() > mostBytes)
            return "there is too much to search";
        bytes += file.size();
        const QByteArray content = file.readAll();
        if (content.size() != file.size())
            return file.error() == QFile::NoError ? "it changed while it was read"
                                                  : file.errorString();
        SearchText(content);
        const QList<QByteArray> lines = content.trimmed().split('\n'); // of a trace, say
        return !LooksLikeJson(content) || IsJson(content) ||
                       std::all_of(lines.begin(), lines.end(), IsJson)
                   ? QString()
                   : "it looks like JSON but is not valid";
    }

    void SearchText(const QByteArray& content)
    {
        const QByteArray text = content.toLower();
        const bool mayEscape = text.contains("\\u");
        for (auto it = sought.begin(); it != sought.end();) {
            const bool isNamed = text.contains(mayEscape ? it->mid(it->indexOf('.')) : *it);
            it = isNamed ? sought.erase(it) : it + 1;
        }
    }
};

/** Whether DataFileName() named the file for its present content and it may be removed. */
bool IsOurs(const QDir& folder, const QString& name)
{
    const auto match = OurNames().match(name);
    QFile file(folder.filePath(name));
    const QFileInfo info(file);
    return match.hasMatch() && !info.isSymLink() && info.isFile() &&
           files::WriteProtection(file.fileName()).isEmpty() && file.open(QIODevice::ReadOnly) &&
           NameDigest(file.readAll()) == match.captured(1);
}

} // namespace

QString DataFileName(const QString& scenePath, const QString& key, const QByteArray& content)
{
    const QString end =
        "." + NameDigest(content) + QLatin1String(key == "PathData" ? ".path" : ".descent");
    const QString base = QFileInfo(scenePath).completeBaseName();
    return files::Shortened(base, files::longestName - end.size()) + end;
}

QStringList DataFilesIn(const QDir& folder)
{
    return folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks).filter(OurNames());
}

Unneeded FindUnneeded(const QDir& folder, const QStringList& candidates)
{
    Search search;
    for (const QString& name : candidates) {
        if (IsOurs(folder, name))
            search.sought.insert(name, EndOf(name));
    }
    if (search.sought.isEmpty())
        return {};
    QString doubt = search.LookInto(folder);
    for (const QString& below :
         folder.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (doubt.isEmpty())
            doubt = search.LookInto(QDir(folder.filePath(below)));
    }
    if (!doubt.isEmpty())
        return {{}, doubt};
    // Unreadable files in the parent folder, which may be /tmp, are no reason to keep anything.
    search.LookInto(QDir(folder.filePath("..")));
    return {search.sought.keys(), {}};
}

} // namespace AnimText::author
