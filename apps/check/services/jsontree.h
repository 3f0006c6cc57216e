#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <vector>

namespace uiutils::check {

/// A value of a JSON text, with its place in the text.
struct JsonNode
{
    enum Kind {
        Null,
        Boolean,
        Number,
        Text,
        List,
        Object,
    };

    Kind kind = Null;
    bool boolean = false;
    /// Where the value begins, and its key if it has one, in bytes.
    int offset = 0;
    int keyOffset = 0;
    /// Behind the last byte of the value.
    int end = 0;
    double number = 0;
    QString key;
    QString text;
    /// Elements, or members in the order of the text, of which several may have one key.
    std::vector<JsonNode> children;

    bool isObject() const { return kind == Object; }
    bool isList() const { return kind == List; }
    bool isText() const { return kind == Text; }
    bool isNumber() const { return kind == Number; }
    bool isWholeNumber() const;

    /// The last member of that key, which is the one that counts; null without one.
    const JsonNode* member(const QString& name) const;
    const JsonNode* member(const char* name) const { return member(QLatin1String(name)); }
    const JsonNode* member(QLatin1String name) const;
    /// The text of a member; empty without one.
    QString textOf(const char* name) const;
    /// The value that the JSON pointer names, or the innermost that is there.
    const JsonNode* at(const QString& pointer) const;
};

/// Something to be told of a place in a JSON text.
struct JsonRemark
{
    int offset = 0;
    QString message;
};

struct JsonTree
{
    JsonNode root;
    /// Whether `root` is complete.
    bool isRead = false;
    /// Why it is not.
    JsonRemark problem;
    /// What is read all the same, although no other reader of JSON may agree: unknown escapes, keys that appear twice.
    QVector<JsonRemark> doubts;
    QVector<JsonRemark> oddities;
};

/// Reads what QJsonDocument reads, and tells what is wrong in the words of somebody who writes JSON by hand.
JsonTree readJson(const QByteArray& text);

} // namespace uiutils::check
