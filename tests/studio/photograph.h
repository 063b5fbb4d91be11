/**
 * @file
 * The studio's screenshots for the documents.
 */
#ifndef TESTS_PHOTOGRAPH_H
#define TESTS_PHOTOGRAPH_H

#include <QStringList>

/** Writes them to a folder. @param words FOLDER [--dark | --german]. @return the exit status */
int Photograph(const QStringList& words);

#endif
