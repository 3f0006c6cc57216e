#include "case.h"

#include "base/durablefile_p.h"
#include "writers/pdffile/pdffile.h"
#include "writers/pdffile/podofo/pdfdocument_p.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

namespace bench {

namespace {

constexpr int ordinaryPages = 10;
constexpr int manyPages = 1'000;
constexpr int manyEntries = 10'000;
constexpr int objectStreams = 2'500;
constexpr int objectsPerStream = 200;

void print(const QString& path, int pages)
{
    QPdfWriter writer(path);
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        for (int line = 0; line < 40; ++line) {
            painter.drawText(200, 200 + 250 * line, QStringLiteral("Event %1.%2: loss 0.25 dB").arg(page).arg(line));
        }
    }
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// As many bytes and objects as a tagged report of 100,000 rows has, most objects packed, without pages.
class LargeFile
{
public:
    LargeFile()
    {
        add("<</Type/Catalog/Pages 2 0 R>>");
        add("<</Type/Pages/Kids[]/Count 0>>");
        add("<</Title(Large)>>");
        for (int i = 0; i < objectStreams; ++i)
            addPortion();
        const int table = m_bytes.size();
        const QByteArray size = QByteArray::number(m_count + 2);
        list(1, table, 0);
        const QByteArray rows = qCompress(m_rows, 5).mid(4);
        add(stream("/Type/XRef/Root 1 0 R/Info 3 0 R/W[1 4 2]/Filter/FlateDecode/Size " + size, rows), false);
        m_bytes += "startxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    }

    const QByteArray& bytes() const { return m_bytes; }

private:
    static QByteArray stream(const QByteArray& keys, const QByteArray& data)
    {
        return "<<" + keys + "/Length " + QByteArray::number(data.size()) + ">>stream\n" + data + "\nendstream";
    }
    void list(int kind, int place, int detail)
    {
        const quint32 offset = qToBigEndian(quint32(place));
        const quint16 index = qToBigEndian(quint16(detail));
        m_rows += char(kind);
        m_rows.append(reinterpret_cast<const char*>(&offset), int(sizeof offset));
        m_rows.append(reinterpret_cast<const char*>(&index), int(sizeof index));
    }
    void add(const QByteArray& body, bool listed = true)
    {
        if (listed)
            list(1, m_bytes.size(), 0);
        m_bytes += QByteArray::number(++m_count) + " 0 obj\n" + body + "\nendobj\n";
    }
    /// What a page shows, and a stream of objects.
    void addPortion()
    {
        QByteArray shown(2'500, Qt::Uninitialized);
        for (char& byte : shown)
            byte = char(m_random.generate());
        add(stream(QByteArray(), shown));
        QByteArray places;
        QByteArray objects;
        const int container = m_count + 1;
        for (int i = 0; i < objectsPerStream; ++i) {
            places += QByteArray::number(container + 1 + i) + ' ' + QByteArray::number(objects.size()) + ' ';
            objects += "<</S/TD/K " + QByteArray::number(m_random.bounded(100)) + ">>\n";
        }
        const QByteArray keys = "/Type/ObjStm/Filter/FlateDecode/N " + QByteArray::number(objectsPerStream) + "/First "
                + QByteArray::number(places.size());
        add(stream(keys, qCompress(places + objects, 5).mid(4)));
        for (int i = 0; i < objectsPerStream; ++i)
            list(2, container, i);
        m_count += objectsPerStream;
    }

    QRandomGenerator m_random {1};
    QByteArray m_bytes = "%PDF-1.7\n";
    QByteArray m_rows = QByteArray(7, '\0');
    int m_count = 0;
};

/// By the clock, since what a helper process does is no time of this one.
std::function<double()> timed(const std::function<void()>& run)
{
    return [run] {
        QElapsedTimer timer;
        timer.start();
        run();
        return double(timer.nsecsElapsed()) / 1e6;
    };
}

QVector<Result> ordinaryCases(int runs, const QString& path)
{
    print(path, ordinaryPages);
    const QByteArray contents = contentsOf(path);
    PDFFile file;
    QString error;
    const Timing load = interleavedParts(runs, timed([&] { file.setFilename(path); }),
            timed([&] { uiutils::podofo::load(contentsOf(path), &error); }));
    file.setTitle(QStringLiteral("Fiber 7"));
    const Timing write = interleavedParts(runs, timed([&] { file.write(QString()); }),
            timed([&] { (void)uiutils::writeFileDurably(path, contents); }));
    return {{QStringLiteral("PDF file of %1 pages tried out and loaded / loaded").arg(ordinaryPages),
                    QStringLiteral("ms"), load.ours, load.floor, 0},
            {QStringLiteral("PDF file of %1 pages written / its bytes written as durably").arg(ordinaryPages),
                    QStringLiteral("ms"), write.ours, write.floor, 0}};
}

Result retitleCase(int runs, const QString& path)
{
    const QByteArray contents = LargeFile().bytes();
    (void)uiutils::writeFileDurably(path, contents);
    const Timing timing = interleavedParts(runs, timed([&] {
        PDFFile file;
        file.setFilename(path);
        file.setTitle(QStringLiteral("Fiber 7"));
        file.write(QString());
    }),
            timed([&] { (void)uiutils::writeFileDurably(path, contentsOf(path)); }));
    return {QStringLiteral("PDF file of %1 MB with %L2 objects retitled / read and written as durably")
                    .arg(contents.size() / 1'000'000)
                    .arg(objectStreams * (objectsPerStream + 2)),
            QStringLiteral("ms"), timing.ours, timing.floor, 0};
}

} // namespace

QVector<Result> pdfFileCases(int runs)
{
    const QTemporaryDir folder;
    return ordinaryCases(runs, folder.filePath(QStringLiteral("ordinary.pdf")))
            << retitleCase(runs, folder.filePath(QStringLiteral("packed.pdf")));
}

} // namespace bench
