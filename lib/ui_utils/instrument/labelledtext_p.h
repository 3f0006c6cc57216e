#pragma once

#include <QString>
#include <QVector>

namespace uiutils::instrument {

/// A line of what the instrument reports.
struct LabelledText
{
    QString label;
    QString text;
};
using LabelledTexts = QVector<LabelledText>;

/// An item without a label is shown with its name.
inline QString shownLabel(const QString& label, const QString& name)
{
    return label.isEmpty() ? name : label;
}

} // namespace uiutils::instrument
