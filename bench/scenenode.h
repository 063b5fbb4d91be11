/**
 * @file
 * The first text of a scene file as a node, read without the scene room: the same source
 * then measures an older plugin.
 */
#pragma once

#include "layout/glyphfiles.h"
#include "node/hanimationtextnode.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainterPath>
#include <QTransform>

#include <memory>

/** Ends the program with a message when @p path holds no scene. */
inline std::unique_ptr<Lw::HNodeAnimationText::HAnimationTextNode> NodeOfScene(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    const QJsonDocument scene = QJsonDocument::fromJson(file.readAll());
    const QJsonObject text = scene["pages"][0]["areas"][0]["nodes"][0].toObject();
    if (text.isEmpty())
        qFatal("no scene: %s", qPrintable(path));

    auto node = std::make_unique<Lw::HNodeAnimationText::HAnimationTextNode>();
    node->SetSize(QSize(text["size"][0].toInt(), text["size"][1].toInt()));
    const QJsonObject attributes = text["attributes"].toObject();
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        node->SetAttribute(it.key(), it.value().toVariant().toString());
    const QJsonObject lists = text["lists"].toObject();
    for (auto it = lists.begin(); it != lists.end(); ++it) {
        QList<QHash<QString, QString>> rows;
        for (const QJsonValue row : it.value().toArray()) {
            QHash<QString, QString> fields;
            for (const QString& field : row.toObject().keys())
                fields[field] = row[field].toString();
            rows.append(fields);
        }
        node->SetList(it.key(), rows);
    }
    const QJsonObject files = text["files"].toObject();
    for (auto it = files.begin(); it != files.end(); ++it)
        node->SetFiles(it.key(), {QFileInfo(path).path() + "/" + it.value().toString()});
    return node;
}

/** Writes the node's outlines to @p file as another editor would: at any fraction of a pixel. */
inline QString FullOutlines(Lw::HNodeAnimationText::HAnimationTextNode& node, const QString& file)
{
    QVector<QPainterPath> paths = node.GetPainterPaths();
    QTransform slightly;
    slightly.scale(1.00123, 0.99877);
    for (QPainterPath& path : paths)
        path = slightly.map(path);
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(AnimText::layout::PathFile(paths)) < 0)
        qFatal("cannot write %s", qPrintable(file));
    return file;
}
