#pragma once

#include "core/uiutils_export.h"
#include "report/report.h"

#include <QAbstractListModel>
#include <QSizeF>

#include <memory>

class QPainter;
class ReportTemplate;

namespace uiutils {

class ReportPreviewPrivate;

/// The pages of a report as a PDF file would have them, before it is saved. In QML: ReportPreview.
///
/// | role | value |
/// |---|---|
/// | `pageWidth` | of the page in points, 1/72 inch |
/// | `pageHeight` | of the page in points |
///
/// A row is a page. Call show(), and have a PreviewPage of UiUtils.Preview for each row that is in sight. No file is
/// made, and a page is drawn when it is needed. What is shown stays as it is until the next show() or clear(). Setters
/// emit their notifier when the value changes. Everything runs on the GUI thread and needs a QGuiApplication.
class UIUTILS_EXPORT ReportPreview : public QAbstractListModel
{
    Q_OBJECT
    /// The controller whose report show() lays out, with the document and the switches that a save would use; null by
    /// default. It stays the caller's.
    Q_PROPERTY(Report* report READ report WRITE setReport NOTIFY reportChanged)
    /// The document that show() lays out where there is no `report`; null by default. It stays the caller's.
    Q_PROPERTY(ReportTemplate* document READ document WRITE setDocument NOTIFY documentChanged)
    /// The number of pages, which are rows: 0 until show() has laid out the report.
    Q_PROPERTY(int pageCount READ pageCount NOTIFY pageCountChanged)
    /// Whether the report is being laid out. The page handles events meanwhile.
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

public:
    /// What a row has; in QML the names of the roles stand for it.
    enum Role { PageWidthRole = Qt::UserRole + 1, PageHeightRole };
    Q_ENUM(Role)

    explicit ReportPreview(QObject* parent = nullptr);
    ~ReportPreview() override;

    Report* report() const;
    void setReport(Report* report);
    ReportTemplate* document() const;
    void setDocument(ReportTemplate* document);
    int pageCount() const;
    bool isBusy() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows the report as it is now, in place of what was shown before. The pages come when control has
    /// returned to the event loop. There are none while a file is being printed, and none of a controller that makes
    /// pages of its own.
    Q_INVOKABLE void show();
    /// Forgets the pages, and the memory that they take.
    Q_INVOKABLE void clear();

    /// The size of a page in points; `page` counts from 0.
    QSizeF pageSize(int page) const;
    /// Paints a page from (0, 0) to pageSize(): the painter's units are to be points. Paints nothing if there is no
    /// such page.
    void paint(QPainter& painter, int page) const;

Q_SIGNALS:
    void reportChanged();
    void documentChanged();
    void pageCountChanged();
    void busyChanged();

private:
    void layOut();
    void addPages();
    void setBusy(bool isBusy);

    const std::unique_ptr<ReportPreviewPrivate> d;
};

} // namespace uiutils
