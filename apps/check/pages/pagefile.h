#pragma once

#include "check/finding.h"

#include <QString>
#include <QVector>

#include <private/qqmljsast_p.h>
#include <private/qqmljsengine_p.h>

#include <memory>

namespace uiutils::check {

/// A QML or JavaScript file as Qt's own parser reads it.
class PageFile
{
public:
    /// Reads the file and says what prevents that. Null for a file that is not there or holds no text.
    static std::unique_ptr<PageFile> read(const QString& path, QVector<Finding>* findings);
    Q_DISABLE_COPY_MOVE(PageFile)

    QString path() const { return m_path; }
    QString folder() const;
    QString code() const { return m_engine.code(); }
    bool isScript() const;
    /// Null after a syntax error, and for a script.
    QQmlJS::AST::UiProgram* page() const { return m_page; }
    /// The page, or the statements of the script; null after a syntax error.
    QQmlJS::AST::Node* root() const { return m_root; }

    /// A finding at a place of the file.
    Finding at(const QQmlJS::SourceLocation& place, const QString& message, const QString& item = {}) const;

private:
    explicit PageFile(const QString& path);
    void parse(const QString& code, QVector<Finding>* findings);

    const QString m_path;
    QQmlJS::Engine m_engine;
    QQmlJS::AST::UiProgram* m_page = nullptr;
    QQmlJS::AST::Node* m_root = nullptr;
};

} // namespace uiutils::check
