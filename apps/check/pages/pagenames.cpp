#include "check/pages/pagenames.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/pages/shallowvisitor.h"

namespace uiutils::check {

using namespace QQmlJS::AST;

/// Enters what one file says into the names of all.
class NameReader : public ShallowVisitor
{
public:
    NameReader(PageNames* names, FileNames* own)
        : m_names(names)
        , m_own(own)
    {
    }

protected:
    bool visit(UiPublicMember* member) override
    {
        const QString name = member->name.toString();
        declare(name);
        for (UiParameterList* parameter = member->parameters; parameter; parameter = parameter->next)
            declare(parameter->name.toString());
        // Whoever uses the file as a component may bind a property of its root.
        if (member->isReadonlyMember || m_objects > 1)
            keep(name, expressionOf(member->statement));
        return true;
    }
    bool visit(UiScriptBinding* binding) override
    {
        const QString name = lastName(binding->qualifiedId);
        const auto* const value = cast<IdentifierExpression*>(expressionOf(binding->statement));
        if (name == QLatin1String("id") && value) {
            declare(value->name.toString());
            m_own->ids.insert(value->name.toString());
        }
        m_names->m_changed.insert(name);
        return true;
    }
    bool visit(UiObjectBinding* binding) override
    {
        m_names->m_changed.insert(lastName(binding->qualifiedId));
        ++m_objects;
        return true;
    }
    void endVisit(UiObjectBinding*) override { --m_objects; }
    bool visit(UiArrayBinding* binding) override
    {
        m_names->m_changed.insert(lastName(binding->qualifiedId));
        return true;
    }
    bool visit(UiObjectDefinition*) override
    {
        ++m_objects;
        return true;
    }
    void endVisit(UiObjectDefinition*) override { --m_objects; }
    bool visit(UiInlineComponent* component) override
    {
        declare(component->name.toString());
        return true;
    }
    bool visit(UiImport* import) override
    {
        declare(import->importId.toString());
        return true;
    }
    bool visit(PatternElement* element) override
    {
        declare(element->bindingIdentifier.toString());
        if (element->isVariableDeclaration())
            keep(element->bindingIdentifier.toString(), element->initializer);
        return true;
    }
    bool visit(PatternProperty* property) override
    {
        declare(property->bindingIdentifier.toString());
        if (property->name)
            m_names->m_changed.insert(property->name->asString());
        return true;
    }
    bool visit(FunctionDeclaration* function) override
    {
        declare(function->name.toString());
        return true;
    }
    bool visit(FunctionExpression* function) override
    {
        declare(function->name.toString());
        return true;
    }
    bool visit(ClassDeclaration* type) override
    {
        declare(type->name.toString());
        return true;
    }
    bool visit(StringLiteral* text) override
    {
        // Of an object by which the engine knows it; of a property that is written by its name.
        m_names->m_changed.insert(text->value.toString());
        return true;
    }
    bool visit(TypeOfExpression* type) override
    {
        if (const auto* const name = cast<IdentifierExpression*>(unwrapped(type->expression)))
            m_own->guarded.insert(name->name.toString());
        guard(type->expression);
        return true;
    }
    bool visit(NotExpression* negation) override
    {
        guard(negation->expression);
        return true;
    }
    bool visit(ConditionalExpression* choice) override
    {
        guard(choice->expression);
        return true;
    }
    bool visit(IfStatement* statement) override
    {
        guard(statement->expression);
        return true;
    }
    bool visit(PostIncrementExpression* step) override
    {
        change(step->base);
        return true;
    }
    bool visit(PostDecrementExpression* step) override
    {
        change(step->base);
        return true;
    }
    bool visit(PreIncrementExpression* step) override
    {
        change(step->expression);
        return true;
    }
    bool visit(PreDecrementExpression* step) override
    {
        change(step->expression);
        return true;
    }
    bool visit(BinaryExpression* pair) override
    {
        if (isComparison(pair->op) && isNothing(pair->right))
            guard(pair->left);
        else if (isComparison(pair->op) && isNothing(pair->left))
            guard(pair->right);
        else if (pair->op == QSOperator::And || pair->op == QSOperator::Or || pair->op == QSOperator::Coalesce)
            guard(pair->left);
        else if (isAssignment(pair->op))
            change(pair->left);
        return true;
    }

private:
    void declare(const QString& name)
    {
        if (!name.isEmpty())
            ++m_names->m_declarations[name];
    }
    void keep(const QString& name, ExpressionNode* value)
    {
        if (value && !name.isEmpty())
            m_own->constants.insert(name, value);
    }
    void change(ExpressionNode* target)
    {
        if (const auto* const name = cast<IdentifierExpression*>(target))
            m_names->m_changed.insert(name->name.toString());
        else if (const auto* const field = cast<FieldMemberExpression*>(target))
            m_names->m_changed.insert(field->name.toString());
    }
    void guard(ExpressionNode* asked)
    {
        const QString service = serviceIn(unwrapped(asked));
        if (!service.isEmpty())
            m_own->guardedServices.insert(service);
    }

    PageNames* const m_names;
    FileNames* const m_own;
    int m_objects = 0;
};

void PageNames::read(const PageFile& file)
{
    const auto own = QSharedPointer<FileNames>::create();
    m_files.insert(&file, own);
    NameReader reader(this, own.data());
    if (file.root())
        file.root()->accept(&reader);
}

ExpressionNode* PageNames::constant(const PageFile& file, const QString& name) const
{
    if (m_declarations.value(name) != 1 || m_changed.contains(name))
        return nullptr;
    return of(file).constants.value(name);
}

} // namespace uiutils::check
