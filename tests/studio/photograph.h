/**
 * @file
 * The studio's screenshots for the documents.
 */
#pragma once

#include <QStringList>

/** Writes them to a folder. @param words FOLDER [--dark | --german]. @return the exit status */
int Photograph(const QStringList& words);
