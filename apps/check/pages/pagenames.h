#pragma once

#include <QHash>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <private/qqmljsastfwd_p.h>

namespace uiutils::check {

class PageFile;

/// What one file says about names.
struct FileNames
{
    /// Names that have one value for good, as far as this file can tell, and the expression of it.
    QHash<QString, QQmlJS::AST::ExpressionNode*> constants;
    QSet<QString> ids;
    /// Names that the file asks for before it uses them, so that they may be missing.
    QSet<QString> guarded;
    /// The same of members of `services`.
    QSet<QString> guardedServices;
};

/// The names that the files of a check declare and change.
class PageNames
{
public:
    /// Before anything is asked about the file.
    void read(const PageFile& file);

    /// Whether any of the files gives the name a meaning: an id, a property, a variable, a parameter, a function ….
    bool isDeclared(const QString& name) const { return m_declarations.contains(name); }
    QStringList declared() const { return m_declarations.keys(); }
    /// Whether it stands in a text, which may be the name by which an object registers itself.
    bool isText(const QString& name) const { return m_changed.contains(name); }
    const FileNames& of(const PageFile& file) const { return *m_files.value(&file); }
    /// The expression of a name that is declared once in all files and changed in none; null for others.
    QQmlJS::AST::ExpressionNode* constant(const PageFile& file, const QString& name) const;

private:
    friend class NameReader;

    QHash<QString, int> m_declarations;
    /// Names that some file binds, assigns, or writes as a text, which may be the name of a property.
    QSet<QString> m_changed;
    QHash<const PageFile*, QSharedPointer<FileNames>> m_files;
};

} // namespace uiutils::check
