#include "node/hanimationtextnode.h"

#include "node/glyphdata.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextDocument>

namespace Lw {
namespace HNodeAnimationText {

namespace {

QString OutputDirectory()
{
    return QCoreApplication::applicationDirPath() +
           QString::fromLatin1("/outputpath/AnimationText/");
}

} // namespace

HAnimationTextNode::HAnimationTextNode()
    : textDocument(new QTextDocument)
{
    // The host writes this node type's output there and expects to find it.
    QDir directory(OutputDirectory());
    if (!directory.exists())
        directory.mkpath(OutputDirectory());
}

HAnimationTextNode::~HAnimationTextNode()
{
    delete textDocument;
    textDocument = 0;
}

QString HAnimationTextNode::Type()
{
    return QString::fromLatin1("LW_animationText_Plugin");
}

QString HAnimationTextNode::Text() const
{
    return GetAttribute(QString::fromLatin1("Text"));
}

int HAnimationTextNode::PlayTimes() const
{
    return GetAttributeToInt(QString::fromLatin1("PlayTimes"));
}

int HAnimationTextNode::AnimationSpeed() const
{
    return GetAttributeToInt(QString::fromLatin1("AnimationSpeed"));
}

void HAnimationTextNode::InitPainterPath()
{
    painterPaths = QVector<QPainterPath>();
    descentData = QVector<int>();

    QFile pathFile(GetFirstFile(QString::fromLatin1("PathData")));
    if (!pathFile.exists()) {
        // Qt 4's debug stream ends every message with a space, Qt 5's with none.
        qDebug().nospace() << ">>PathData File is not exist!!<<" << ' ';
        return;
    }
    // Opening a pipe would wait for a writer that may never come.
    if (!QFileInfo(pathFile).isFile() || !pathFile.open(QIODevice::ReadOnly))
        return;
    painterPaths = OutlinesFrom(ReadGlyphData(pathFile));
    pathFile.close();

    QFile descentFile(GetFirstFile(QString::fromLatin1("DescentVector")));
    if (!descentFile.exists()) {
        qDebug().nospace() << ">>DescentVector File is not exist!!<<" << ' ';
        return;
    }
    if (!QFileInfo(descentFile).isFile() || !descentFile.open(QIODevice::ReadOnly))
        return;
    descentData = DescentsFrom(ReadGlyphData(descentFile));
    descentFile.close();
}

QVector<int>& HAnimationTextNode::GetDescentData()
{
    InitPainterPath();
    return descentData;
}

QVector<QPainterPath>& HAnimationTextNode::GetPainterPaths()
{
    InitPainterPath();
    return painterPaths;
}

} // namespace HNodeAnimationText
} // namespace Lw
