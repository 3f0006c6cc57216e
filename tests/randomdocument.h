#pragma once

#include "files.h"

#include "document/reporttemplate.h"

#include <QtTest>

/// A document of random shape: nested sections, tables, rows, cells, missing keys, texts from all planes of Unicode.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed)
    {
    }

    void readInto(ReportTemplate& report)
    {
        static const QTemporaryDir folder;
        report.readFile(writeFile(folder.filePath("document.json"), QJsonDocument(node(3)).toJson()));
    }

private:
    QJsonObject node(int depth)
    {
        QJsonObject object;
        maybeSet(object, "tag");
        maybeSet(object, "title");
        maybeSet(object, "config_module");
        for (int i = m_random.bounded(4); i > 0; --i)
            object.insert("attr_" + text(), text());
        for (int i = m_random.bounded(3); i > 0; --i)
            object.insert("log_" + text(), text());
        for (int i = m_random.bounded(3); i > 0; --i)
            object.insert(QString("table_%1").arg(i), table());
        for (int i = depth > 0 ? m_random.bounded(4) : 0; i > 0; --i)
            object.insert("section_" + text(), node(depth - 1));
        return object;
    }

    QJsonValue table()
    {
        if (m_random.bounded(8) == 0)
            return text();
        QJsonObject object {{"use_row_labels", true}, {"num_columns", 2}};
        maybeSet(object, "tag");
        for (int i = m_random.bounded(4); i > 0; --i) {
            QJsonObject row;
            maybeSet(row, "label");
            for (int cell = m_random.bounded(3); cell > 0; --cell) {
                QJsonObject content;
                maybeSet(content, "tag");
                maybeSet(content, "label");
                content.insert("attr_" + text(), text());
                content.insert("attr_" + text(), text());
                row.insert(QString("cell_%1").arg(cell), content);
            }
            object.insert(QString("row_%1").arg(i), row);
        }
        return object;
    }

    void maybeSet(QJsonObject& object, const char* key)
    {
        if (m_random.bounded(5) != 0)
            object.insert(QLatin1String(key), text());
    }

    QString text()
    {
        static const QStringList nasty {"-->", "--", "-", "]]>", "<removeSection>\n", "</removeSection>", "xml:lang",
                "xmlns", "EMPTY", " ", "&amp;", "a:b", "1st", "\"'", ">"};
        QString text;
        for (int parts = m_random.bounded(4); parts > 0; --parts) {
            const uint kind = m_random.bounded(4U);
            if (kind == 0) {
                text += nasty.at(m_random.bounded(nasty.size()));
                continue;
            }
            const uint c = kind == 1 ? m_random.bounded(0x110000U) : m_random.bounded(kind == 2 ? 0x100U : 0x80U);
            if (c < 0x10000)
                text += QChar(ushort(c));
            else
                text += QString(QChar(QChar::highSurrogate(c))) + QChar(QChar::lowSurrogate(c));
        }
        return text;
    }

    QRandomGenerator m_random;
};
