#pragma once

#include <QString>
#include <QStringList>

class QJsonObject;

/**
 * A path or name as a value of an object. JSON is text (RFC 8259), and a name on disk need not be: beside what is shown
 * then stands KEYEncoded, its bytes percent-encoded (RFC 3986), from which a program gets the name back. Pure.
 */
void insertPath(QJsonObject &object, const QString &key, const QString &path);
/** The same of several: KEYEncoded has all of them, where one of them is no text. */
void insertPaths(QJsonObject &object, const QString &key, const QStringList &paths);
