#include "tokens.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace bench {

namespace {

QVector<QPair<QString, QString>> pairs(const QXmlStreamAttributes& attributes)
{
    QVector<QPair<QString, QString>> result;
    for (const QXmlStreamAttribute& attribute : attributes)
        result.append({attribute.name().toString(), attribute.value().toString()});
    return result;
}

void writeAttributes(QXmlStreamWriter& writer, const Token& token)
{
    for (const auto& attribute : token.attributes)
        writer.writeAttribute(attribute.first, attribute.second);
}

} // namespace

QVector<Token> tokensOf(const QString& markup)
{
    QVector<Token> tokens;
    QXmlStreamReader reader(markup);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            tokens.append({Token::Dtd, reader.text().trimmed().toString(), {}});
            break;
        case QXmlStreamReader::StartElement: {
            // "<x/>" or "<x></x>": the reader does not tell, the text does.
            const bool isEmpty = markup.at(int(reader.characterOffset()) - 2) == QLatin1Char('/');
            tokens.append(
                    {isEmpty ? Token::Empty : Token::Start, reader.name().toString(), pairs(reader.attributes())});
            if (isEmpty)
                reader.readNext();
            break;
        }
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace())
                tokens.append({Token::Characters, reader.text().toString(), {}});
            break;
        case QXmlStreamReader::Comment:
            tokens.append({Token::Comment, reader.text().toString(), {}});
            break;
        case QXmlStreamReader::EndElement:
            if (tokens.constLast().kind == Token::Start)
                tokens.append({Token::Characters, QString(), {}});
            tokens.append({Token::End, QString(), {}});
            break;
        default:
            break;
        }
    }
    return tokens;
}

QString emitTokens(const QVector<Token>& tokens)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    for (const Token& token : tokens) {
        switch (token.kind) {
        case Token::Dtd:
            writer.writeDTD(token.text);
            break;
        case Token::Start:
            writer.writeStartElement(token.text);
            writeAttributes(writer, token);
            break;
        case Token::Empty:
            writer.writeEmptyElement(token.text);
            writeAttributes(writer, token);
            break;
        case Token::Characters:
            writer.writeCharacters(token.text);
            break;
        case Token::Comment:
            writer.writeComment(token.text);
            break;
        case Token::End:
            writer.writeEndElement();
            break;
        }
    }
    writer.writeEndDocument();
    return text;
}

} // namespace bench
