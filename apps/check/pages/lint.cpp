#include "check/pages/lint.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/pages/shallowvisitor.h"
#include "check/wording.h"

#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

/// Where objects are made for the rows of a model, whose roles are names there.
class RowReader : public ShallowVisitor
{
public:
    bool isInRows(int line) const
    {
        return std::any_of(m_ranges.cbegin(), m_ranges.cend(),
                [line](const Range& range) { return line >= range.first && line <= range.last; });
    }

protected:
    bool visit(UiObjectDefinition* object) override
    {
        static const QSet<QString> makers {QStringLiteral("Repeater"), QStringLiteral("Instantiator"),
                QStringLiteral("Component"), QStringLiteral("DelegateModel")};
        if (makers.contains(lastName(object->qualifiedTypeNameId)))
            enter(object);
        return true;
    }
    bool visit(UiObjectBinding* binding) override
    {
        if (lastName(binding->qualifiedId).endsWith(QLatin1String("elegate")))
            enter(binding);
        return true;
    }
    bool visit(UiInlineComponent* component) override
    {
        enter(component);
        return true;
    }

private:
    struct Range
    {
        int first;
        int last;
    };
    void enter(Node* node)
    {
        m_ranges.append({int(node->firstSourceLocation().startLine), int(node->lastSourceLocation().startLine)});
    }

    QVector<Range> m_ranges;
};

/// One complaint of the checker.
struct Complaint
{
    QString text;
    int line = 0;
    int column = 0;
    /// Whether the checker knows where the name comes from, and only advises to say so.
    bool isAdvice = false;
};

QVector<Complaint> complaintsIn(const QString& output)
{
    static const QRegularExpression behind(QStringLiteral("^Warning: (.*) at (\\d+):(\\d+)\\.?$"));
    static const QRegularExpression before(QStringLiteral("^Warning: (\\d+):(\\d+): (.*)$"));
    QVector<Complaint> complaints;
    const QStringList lines = output.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QRegularExpressionMatch atEnd = behind.match(line);
        const QRegularExpressionMatch atBegin = before.match(line);
        if (atEnd.hasMatch())
            complaints.append({atEnd.captured(1), atEnd.captured(2).toInt(), atEnd.captured(3).toInt(), false});
        else if (atBegin.hasMatch())
            complaints.append({atBegin.captured(3), atBegin.captured(1).toInt(), atBegin.captured(2).toInt(), false});
        else if (line.startsWith(QLatin1String("Note:")) && !complaints.isEmpty())
            complaints.last().isAdvice = true;
    }
    return complaints;
}

/// The texts in quotation marks.
QStringList quotedIn(const QString& text)
{
    QStringList quoted;
    const QStringList parts = text.split(QLatin1Char('"'));
    for (int i = 1; i < parts.size(); i += 2)
        quoted += parts.at(i);
    return quoted;
}

QStringList namesOfEveryPage()
{
    return {QStringLiteral("parent"), QStringLiteral("console"), QStringLiteral("services"), QStringLiteral("qsTr"),
            QStringLiteral("undefined"), QStringLiteral("parseInt"), QStringLiteral("parseFloat")};
}

QString nameAt(const QString& line, int column)
{
    static const QRegularExpression name(QStringLiteral("[A-Za-z_$][\\w$]*"));
    return name.match(line, column - 1, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption)
            .captured();
}

/// Turns complaints about one file into findings.
class Translation
{
public:
    Translation(const PageScope& scope, bool isPage, bool knowsTypes)
        : m_scope(scope)
        , m_isPage(isPage)
        , m_knowsTypes(knowsTypes)
        , m_lines(scope.file.code().split(QLatin1Char('\n')))
    {
        if (scope.file.root())
            scope.file.root()->accept(&m_rows);
    }

    /// Without a message for what a user need not know.
    Finding of(const Complaint& complaint) const
    {
        Finding finding {Finding::Warning, m_scope.file.path(), complaint.line, complaint.column, QString(), QString()};
        const QStringList names = quotedIn(complaint.text);
        if (complaint.text == QLatin1String("unqualified access")) {
            finding.message = ofName(complaint);
        } else if (complaint.text.startsWith(QLatin1String("Property "))) {
            finding.weight = Finding::Error;
            finding.message = ofProperty(complaint, names);
        } else if (complaint.text.startsWith(QLatin1String("no matching signal"))) {
            finding.weight = m_knowsTypes ? Finding::Error : Finding::Warning;
            finding.message = QStringLiteral("The object has no signal for \"%1\", so this is never called.")
                                      .arg(names.value(0));
        } else if (complaint.text.startsWith(QLatin1String("with statements"))) {
            finding.message = QStringLiteral("Leave out \"with\": nobody can tell what a name below it stands for.");
        } else if (complaint.text.contains(QLatin1String("You cannot access"))) {
            finding.message = QStringLiteral("\"%1\" has no members, so \"%2\" of it is undefined.")
                                      .arg(names.value(0), names.constLast());
        }
        return finding;
    }

private:
    QString lineOf(const Complaint& complaint) const { return m_lines.value(complaint.line - 1); }
    /// Only what looks like a slip: programs give pages names of their own, and rows of models have others.
    QString ofName(const Complaint& complaint) const
    {
        const QString name = nameAt(lineOf(complaint), complaint.column);
        const bool isKnown = name.isEmpty() || name.at(0).isUpper() || !tagInName(name).isEmpty()
                || name == QLatin1String("services") || m_scope.names.isDeclared(name) || m_scope.names.isText(name)
                || m_scope.names.of(m_scope.file).guarded.contains(name) || m_scope.imports.properties.contains(name);
        if (complaint.isAdvice || isKnown || name.size() < 3 || !m_isPage || !m_knowsTypes
                || m_rows.isInRows(complaint.line))
            return QString();
        QStringList near = m_scope.names.declared();
        near += namesOfEveryPage();
        near.erase(std::remove_if(
                           near.begin(), near.end(), [&name](const QString& known) { return !isSlip(name, known); }),
                near.end());
        return near.isEmpty() ? QString() : QStringLiteral("Nothing has the name \"%1\".%2").arg(name, proposal(near));
    }
    /// Only of an object that the file itself declares: the class of another may have more than the checker sees.
    QString ofProperty(const Complaint& complaint, const QStringList& names) const
    {
        static const QRegularExpression owner(QStringLiteral("(?<![\\w.])(\\w+)\\.$"));
        const QString before = lineOf(complaint).left(complaint.column - 1);
        const QString id = owner.match(before).captured(1);
        return names.size() < 2 || !m_knowsTypes || !m_scope.names.of(m_scope.file).ids.contains(id)
                ? QString()
                : QStringLiteral("\"%1\" is of type %2, which has no property \"%3\".")
                          .arg(id, names.at(1), names.at(0));
    }

    const PageScope& m_scope;
    const bool m_isPage;
    const bool m_knowsTypes;
    const QStringList m_lines;
    RowReader m_rows;
};

} // namespace

QString lintProgram()
{
    const QString name = QStringLiteral("qmllint");
    const QString ofQt = QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1Char('/') + name;
    return QFileInfo(ofQt).isExecutable() ? ofQt : QStandardPaths::findExecutable(name);
}

QVector<Finding> findingsOfLint(const QString& output, const PageScope& scope, bool isPage)
{
    const bool knowsTypes = scope.imports.isComplete;
    const Translation translation(scope, isPage, knowsTypes);
    QVector<Finding> findings;
    const QVector<Complaint> complaints = complaintsIn(output);
    for (const Complaint& complaint : complaints) {
        const Finding finding = translation.of(complaint);
        if (!finding.message.isEmpty())
            findings.append(finding);
    }
    return findings;
}

QVector<Finding> lint(const QString& program, const PageScope& scope, const QStringList& importFolders, bool isPage)
{
    constexpr int longestMs = 30000;
    // It takes seconds for such a file, which is no page that somebody wrote by hand.
    constexpr int longestFile = 512 * 1024;
    if (scope.file.code().size() > longestFile)
        return {{Finding::Warning, scope.file.path(), 0, 0, QString(),
                QStringLiteral("qmllint was not asked, because the file has more than 512 KiB.")}};
    QStringList arguments {QStringLiteral("-U")};
    for (const QString& folder : importFolders)
        arguments << QStringLiteral("-I") << folder;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments << QFileInfo(scope.file.path()).absoluteFilePath());
    if (!process.waitForFinished(longestMs)) {
        process.kill();
        process.waitForFinished();
        return {{Finding::Warning, scope.file.path(), 0, 0, QString(),
                QStringLiteral("%1 did not finish with this file.").arg(program)}};
    }
    QVector<Finding> findings = findingsOfLint(QString::fromLocal8Bit(process.readAll()), scope, isPage);
    if (process.exitStatus() == QProcess::CrashExit)
        findings.append({Finding::Warning, scope.file.path(), 0, 0, QString(),
                QStringLiteral("qmllint crashed over this file, so less of it was checked.")});
    return findings;
}

} // namespace uiutils::check
