#pragma once

#include "report/saving/savehooks_p.h"

#include <QPointer>

class Report;

namespace uiutils {

class ReportPrivate;

/// A report controller as saving sees it.
class ReportHooks : public SaveHooks
{
public:
    explicit ReportHooks(Report* report);
    ~ReportHooks() override;

    bool isAlive() const override { return m_report; }
    bool isCompressed() const override;
    bool notifiesTray() const override;
    bool notifiesOncePerSave() const override;
    void storeSettings() override;
    QString chosenName() override;
    FormatChoice chosenFormats() override;
    void takeJobInfo() override;
    bool isSynced() override;
    QString baseFolder() const override;
    QString pathOf(const QString& name, const QString& suffix) override;
    void started(const QString& name) override;
    bool keepsName() override;
    void prepareDocument() override;
    bool write(int format, const QString& path, bool overwrite) override;
    void describe(const QString& path, const QString& format) override;
    void asked(const QString& path) override;
    void declined(const QString& path) override;
    void succeeded(const QString& path, const QString& name) override;
    void failed(const QString& name) override;
    void savingChanged() override;
    void progressChanged() override;
    void fileWritten(const QString& path, const QString& saved) override;
    void filesChanged() override;
    void filesSaved(const QStringList& files, bool isSynced) override;
    void overwriteAccepted() override;
    void listenForAnswers() override;
    bool isInteractive() const override;

private:
    ReportPrivate& data() const;

    QPointer<Report> m_report;
};

} // namespace uiutils
