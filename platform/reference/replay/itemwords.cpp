#include "itemwords_p.h"

#include <kiv/kivclientitem.h>

#include <algorithm>
#include <iterator>

namespace kiv::replay {

namespace {

struct TypeWord
{
    unsigned type;
    const char* word;
};

constexpr TypeWord typeWords[] = {
        {KIVClientItem::TypeString, "std::string"},
        {KIVClientItem::TypeBool, "bool"},
        {KIVClientItem::TypeInt, "int"},
        {KIVClientItem::TypeUInt, "uint"},
        {KIVClientItem::TypeDouble, "double"},
        {KIVClientItem::TypeStringArray, "stringARRAY"},
        {KIVClientItem::TypeDoubleArray, "doubleARRAY"},
        {KIVClientItem::TypeAction, "action"},
        {KIVClientItem::TypeAggregate, "aggregate"},
        {KIVClientItem::TypeListAggregate, "listAggregate"},
};

struct QualityWord
{
    int quality;
    const char* word;
};

constexpr QualityWord qualityWords[] = {
        {KIVClientItem::QualityNone, "none"},
        {KIVClientItem::QualityPassing, "passing"},
        {KIVClientItem::QualityWarning, "warning"},
        {KIVClientItem::QualityFailing, "failing"},
};

} // namespace

QString typeWord(unsigned type)
{
    const auto* const found = std::find_if(
            std::begin(typeWords), std::end(typeWords), [type](const TypeWord& each) { return each.type == type; });
    return found == std::end(typeWords) ? QString() : QLatin1String(found->word);
}

QString qualityWord(int quality)
{
    const auto* const found = std::find_if(std::begin(qualityWords), std::end(qualityWords),
            [quality](const QualityWord& each) { return each.quality == quality; });
    return QLatin1String(found == std::end(qualityWords) ? "none" : found->word);
}

bool readQuality(const QString& word, int* quality)
{
    const auto* const found = std::find_if(std::begin(qualityWords), std::end(qualityWords),
            [&word](const QualityWord& each) { return word == QLatin1String(each.word); });
    if (found == std::end(qualityWords))
        return false;
    *quality = found->quality;
    return true;
}

} // namespace kiv::replay
