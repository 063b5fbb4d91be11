#include "node/hanimationtextnode.h"

#include "node/attribute.h"
#include "text/glyphdata.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextDocument>

namespace Lw {
namespace HNodeAnimationText {

namespace {

/** Opens the data file under @p key for reading; false when it cannot be read. */
bool OpenDataFile(HData& node, const char* key, QFile& file)
{
    file.setFileName(node.GetFirstFile(QString::fromLatin1(key)));
    if (!file.exists()) {
        // Qt 4's debug stream ends every message with a space, Qt 5's does not.
        qDebug().nospace() << ">>" << key << " File is not exist!!<<" << ' ';
        return false;
    }
    // Opening a pipe would wait for a writer that may never come.
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}

} // namespace

HAnimationTextNode::HAnimationTextNode()
    : textDocument(new QTextDocument)
{
    // The host writes this node type's output there and expects to find it.
    QDir().mkpath(QCoreApplication::applicationDirPath() +
                  QString::fromLatin1("/outputpath/AnimationText/"));
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

QString HAnimationTextNode::Text()
{
    return GetAttribute(QString::fromLatin1("Text"));
}

int HAnimationTextNode::PlayTimes()
{
    return Attribute(this, "PlayTimes");
}

int HAnimationTextNode::AnimationSpeed()
{
    return Attribute(this, "AnimationSpeed");
}

void HAnimationTextNode::InitPainterPath()
{
    painterPaths = QVector<QPainterPath>();
    descentData = QVector<int>();

    QFile pathFile;
    if (!OpenDataFile(*this, "PathData", pathFile))
        return;
    painterPaths = OutlinesFrom(ReadGlyphData(pathFile));

    QFile descentFile;
    if (!OpenDataFile(*this, "DescentVector", descentFile))
        return;
    descentData = DescentsFrom(ReadGlyphData(descentFile));
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
