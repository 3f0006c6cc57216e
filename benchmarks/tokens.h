#pragma once

#include <QPair>
#include <QString>
#include <QVector>

namespace bench {

/// A step of a stream writer, its texts and names ready made.
struct Token
{
    enum Kind { Dtd, Start, Empty, Characters, Comment, End } kind;
    QString text;
    QVector<QPair<QString, QString>> attributes;
};

/// The tokens of a text that an auto-formatting stream writer wrote.
QVector<Token> tokensOf(const QString& markup);

/// What a bare auto-formatting stream writer makes of the tokens: the least that a writer has to do.
QString emitTokens(const QVector<Token>& tokens);

} // namespace bench
