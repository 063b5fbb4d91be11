/**
 * @file
 * What data files are made of.
 */
#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

/** @p values as Qt 4.8 writes them into a stream. */
template <typename... Values>
QByteArray Serialized(const Values&... values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_8);
    (stream << ... << values);
    return bytes;
}
