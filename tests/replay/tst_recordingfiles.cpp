#include "columns.h"
#include "filesizelimit.h"
#include "recordingbench.h"

#include "replay/recordingfile_p.h"

#include <zlib.h>

#include <QProcess>

using kiv::replay::Player;
using kiv::replay::RecordingFile;

namespace {

/// JSON whose texts stand in single quotes.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

const QByteArray start = json("{'t':0,'service':'otdr','snapshot':1}\n"
                              "{'t':0,'service':'otdr','id':':result:otdr:a:','type':'int','value':1}\n");

QByteArray change(const QByteArray& fields)
{
    return json("{'t':5,'service':'otdr','id':':result:otdr:a:',") + fields + "}\n";
}

QByteArray numbered(int count)
{
    QByteArray lines;
    for (int i = 2; i <= count; ++i)
        lines += "{\"t\":" + QByteArray::number(i) + json(",'service':'otdr','id':':result:otdr:a:','value':") + QByteArray::number(i) + "}\n";
    return lines;
}

/// As many bytes as `size` in a few.
QByteArray bomb(const QByteArray& begin, qint64 size, char filling)
{
    z_stream stream {};
    deflateInit2(&stream, 9, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    QByteArray result;
    const auto add = [&](QByteArray piece, int flush) {
        QByteArray block(deflateBound(&stream, uLong(piece.size())) + 100, Qt::Uninitialized);
        stream.next_in = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_in = uInt(piece.size());
        stream.next_out = reinterpret_cast<Bytef*>(block.data());
        stream.avail_out = uInt(block.size());
        deflate(&stream, flush);
        result += block.left(block.size() - int(stream.avail_out));
    };
    add(begin, Z_NO_FLUSH);
    const QByteArray piece(1 << 20, filling);
    for (qint64 done = 0; done < size; done += piece.size())
        add(piece, Z_NO_FLUSH);
    add({}, Z_FINISH);
    deflateEnd(&stream);
    return result;
}

QString recordTo(const QString& path, RecordingFile::Form form, const QByteArray& lines)
{
    QString problem;
    const auto file = RecordingFile::create(path, form, &problem);
    if (!file)
        return problem;
    file->append(lines);
    file->close();
    return file->problem();
}

/// The most memory that this process has held; with AddressSanitizer, which keeps what is freed, nothing.
int mostResidentKiB()
{
#ifndef __SANITIZE_ADDRESS__
    const QList<QByteArray> lines = contentsOf("/proc/self/status").split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toInt();
    }
#endif
    return 0;
}

} // namespace

/// The files of recordings: as they are written, and what may be in them.
class RecordingFilesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void brokenLines_data()
    {
        addColumns<QByteArray, QString>();
        const auto row = [](const char* name, const QByteArray& line, const char* words) { QTest::newRow(name) << line << QString(words); };
        row("sound", change(json("'value':1")), "");
        row("no JSON", "{\"t\":5,\n", "broken lines: 1");
        row("no object", "[1]\nnull\n\n\"\"\n", "broken lines: 4");
        row("bytes", QByteArray("\0\xff\xfe{\n", 5), "broken lines: 1");
        row("deep", QByteArray(100000, '[') + '\n' + "{\"t\":" + QByteArray(100000, '[') + '\n', "broken lines: 2");
        row("no service", json("{'t':5,'id':':result:otdr:a:','value':2}\n"), "broken lines: 1");
        row("no time", json("{'service':'otdr','id':':result:otdr:a:','value':2}\n"), "broken lines: 1");
        for (const char* time : {"-1", "1e300", "1e18", "\"5\"", "null", "[5]"})
            row(time, json("{'service':'otdr','id':':result:otdr:a:','value':2,'t':") + QByteArray(time) + "}\n", "broken lines: 1");
        row("names twice", json("{'t':5,'service':'otdr','id':':result:otdr:a:','value':[[1]],'value':[[2]]}\n"), "broken lines: 1");
        row("names spelt twice", change(json("'value':[[1]],'v\\u0061lue':[[2]]")), "broken lines: 1");
        row("nothing said", json("{'t':5,'service':'otdr'}\n"), "broken lines: 1");
        row("long id", json("{'t':5,'service':'otdr','value':2,'id':':") + QByteArray(300, 'x') + ":\"}\n", "broken lines: 1");
        row("too many values", change("\"value\":[0" + QByteArray(",0").repeated(2000001) + "]"), "broken lines: 1");
        row("too many lists", change("\"value\":[[]" + QByteArray(",[]").repeated(750001) + "]"), "broken lines: 1");
        row("too long", change("\"value\":\"" + QByteArray(33 << 20, 'x') + "\""), "broken lines: 1");
        row("backwards", change(json("'value':1")).replace("\"t\":5", "\"t\":8") + change(json("'value':1")).replace("\"t\":5", "\"t\":10")
                        + change(json("'value':1")).replace("\"t\":5", "\"t\":9"), "goes backwards: 1");
        row("unknown item", json("{'t':5,'service':'otdr','id':':result:otdr:b:','value':2}\n"), "not there: 1");
        row("unknown service", json("{'t':5,'service':'x','id':':result:otdr:a:','value':2}\n") + json("{'t':5,'service':'x','gone':true}\n"), "not there: 2");
        for (const char* fields : {"\"value\":\"x\"", "\"value\":[1]", "\"value\":{}", "\"value\":1e300", "\"quality\":\"good\"", "\"ready\":1",
                     "\"applicable\":\"yes\"", "\"choices\":[{\"value\":1}]", "\"minimum\":5,\"maximum\":1"})
            row(fields, change(fields), "do not fit their item: 1");
        row("item of no type", json("{'t':5,'service':'otdr','id':':result:otdr:b:','type':'float'}\n"), "do not fit their item: 1");
        row("item of no category", json("{'t':5,'service':'otdr','id':'b','type':'int'}\n"), "do not fit their item: 1");
        row("another form", json("{'t':5,'service':'otdr','id':':result:otdr:a:','value':1,'new':{'x':[2]}}\n"), "");
        row("no end", change(json("'value':1")).chopped(3), "in the middle");
    }
    /// Whatever stands in between, the item keeps what it had, and what follows counts.
    void brokenLines()
    {
        const auto [line, words] = currentRow<QByteArray, QString>();
        const bool isEnd = !line.endsWith('\n');
        PlayingBench played(start + line + (isEnd ? QByteArray() : QByteArray(json("{'t':12,'service':'otdr','id':':result:otdr:a:','value':7}\n"))));
        QVERIFY2(played.isOpen, qPrintable(played.problem));
        played.player.advanceTo(8);
        QCOMPARE(played.value(), QVariant(1));
        QVERIFY(played.item()->isReady() && played.item()->isApplicable() && !played.item()->getMinRange().isValid());
        for (qint64 last = 8; played.player.nextTime();) {
            const qint64 next = *played.player.nextTime();
            QVERIFY(next >= last);
            last = next;
            played.player.advanceTo(next);
            QVERIFY(played.player.nextTime() != next);
        }
        QCOMPARE(played.value(), QVariant(isEnd ? 1 : 7));
        const QString troubles = played.player.troubles();
        QVERIFY2(words.isEmpty() ? troubles.isEmpty() : troubles.contains(words), qPrintable(troubles));
        QCOMPARE(troubles.count(':'), words.isEmpty() ? 0 : isEnd ? 1 : 2);
    }

    void noRecordings()
    {
        const auto problemOf = [this](const QByteArray& contents) {
            kiv::embedded::EmbeddedBackend backend;
            Player player(&backend);
            QString problem;
            const bool isOpen = player.open(writeFile(m_folder.filePath("none"), contents), &problem);
            return isOpen ? "open" : problem;
        };
        const QString none = "is not a recording of services.";
        for (const QByteArray& contents : {QByteArray(), QByteArray("\n"), QByteArray("{}\n"), start, QByteArray("\x1f\x8b"), QByteArray(100000, '\0'),
                     bomb({}, 300 << 20, ' '), bomb({}, 1, '\n')})
            QVERIFY2(problemOf(contents).endsWith(none), qPrintable(problemOf(contents)));
        QVERIFY(problemOf("{\"format\":\"kiv-recording\",\"version\":2}\n" + start).contains("newer program"));
        QVERIFY(problemOf(recordingHeader).contains("no service"));
        kiv::embedded::EmbeddedBackend backend;
        Player player(&backend);
        QString problem;
        QVERIFY(!player.open("/nowhere/a", &problem) && problem.contains("/nowhere/a cannot be read"));
        QVERIFY(!player.open("/dev/zero", &problem) && problem.contains("/dev/zero is not a file"));
    }

    /// Wherever it was cut, plain or compressed: what can be read is played, and the rest is said to be missing.
    void cutAnywhere()
    {
        const QByteArray lines = start + numbered(9);
        QCOMPARE(recordTo(m_folder.filePath("whole.gz"), RecordingFile::Compressed, recordingHeader + lines), QString());
        const QByteArray compressed = contentsOf(m_folder.filePath("whole.gz"));
        QVERIFY(compressed.startsWith("\x1f\x8b") && compressed.size() < recordingHeader.size() + lines.size());
        for (const QByteArray& whole : {recordingHeader + lines, compressed}) {
            int before = 0;
            for (int size = 0; size <= whole.size(); ++size) {
                PlayingBench played(whole.left(size), {});
                played.player.advanceTo(100);
                const int value = played.isOpen && played.item() ? played.value().toInt() : 0;
                QVERIFY2(value >= before && value <= 9, qPrintable(QString("%1 bytes: %2 after %3").arg(size).arg(value).arg(before)));
                const bool isEndOfLine = size == 0 || whole.at(size - 1) == '\n';
                const bool isWhole = size == whole.size() || (whole != compressed && isEndOfLine);
                QVERIFY(!played.isOpen || played.player.troubles().contains("in the middle") == !isWhole);
                before = value;
            }
            QCOMPARE(before, 9);
        }
        // Damaged in its middle.
        QByteArray damaged = compressed;
        damaged[damaged.size() / 2] = char(~damaged.at(damaged.size() / 2));
        PlayingBench played(damaged, {});
        played.player.advanceTo(100);
        QVERIFY(!played.isOpen || played.player.troubles().contains("in the middle"));
    }

    /// A few bytes that stand for a line without end, or for lines without end that say nothing.
    void bombs()
    {
        for (const char filling : {'x', '\n', '{'}) {
            const int before = mostResidentKiB();
            PlayingBench played(bomb(recordingHeader + start + numbered(2), 300 << 20, filling), {});
            QVERIFY2(played.isOpen, qPrintable(played.problem));
            played.player.advanceTo(100);
            QCOMPARE(played.value(), QVariant(2));
            QVERIFY2(played.player.troubles().contains("in the middle"), qPrintable(played.player.troubles()));
            QVERIFY2(mostResidentKiB() - before < 150 << 10, qPrintable(QString::number(mostResidentKiB() - before)));
        }
    }

    /// What would be held all at once has a limit; a new value takes the place of the old one.
    void muchToHold()
    {
        const QByteArray text(24 << 20, 'y');
        const auto line = [&text](int time, int item) {
            return QByteArray("{\"t\":" + QByteArray::number(time) + json(",'service':'otdr','id':':result:otdr:n") + QByteArray::number(item)
                    + (time == 0 ? json(":','type':'std::string','value':'") : json(":','value':'")) + text + "\"}\n");
        };
        QFile file(writeFile(m_folder.filePath("much"), recordingHeader + json("{'t':0,'service':'otdr','snapshot':12}\n")));
        QVERIFY(file.open(QIODevice::Append));
        for (int i = 0; i < 12; ++i)
            file.write(line(0, i));
        for (int i = 1; i <= 3; ++i)
            file.write(line(i, 0));
        file.close();
        PlayingBench played("");
        QVERIFY2(played.player.open(file.fileName(), &played.problem), qPrintable(played.problem));
        played.player.advanceTo(3);
        // 48 MiB each in memory.
        QCOMPARE(played.client()->getItemIds().size(), 10);
        QVERIFY2(played.player.troubles().contains("beyond the limits: 2"), qPrintable(played.player.troubles()));
    }

    void replacesNothing()
    {
        const QString path = writeFile(m_folder.filePath("there"), "precious");
        QString problem;
        QVERIFY(!RecordingFile::create(path, RecordingFile::Plain, &problem));
        QVERIFY2(problem.contains("exists"), qPrintable(problem));
        QCOMPARE(contentsOf(path), QByteArray("precious"));
        QVERIFY(!RecordingFile::create("/nowhere/a", RecordingFile::Plain, &problem));
        QVERIFY2(problem.contains("/nowhere/a cannot be written"), qPrintable(problem));
    }

    /// What was written before the disk was full is a recording, with complete lines alone.
    void fullDisk()
    {
        const QByteArray lines = recordingHeader + start + numbered(20000);
        for (const RecordingFile::Form form : {RecordingFile::Plain, RecordingFile::Compressed}) {
            const QString path = m_folder.filePath(form == RecordingFile::Plain ? "full" : "full.gz");
            QStringList failures;
            int last = 0;
            {
                const FileSizeLimit limit(form == RecordingFile::Plain ? 500001 : 50001);
                QString problem;
                const auto file = RecordingFile::create(path, form, &problem);
                connect(file.get(), &RecordingFile::failed, this, [&failures](const QString& reason) { failures += reason; });
                for (int begin = 0; begin < lines.size() && file->problem().isEmpty();) {
                    const int end = lines.indexOf('\n', qMin(begin + 20000, lines.size() - 1)) + 1;
                    file->append(lines.mid(begin, end - begin));
                    begin = end;
                }
                QVERIFY(!file->close());
                QVERIFY2(file->problem().contains(path) && file->problem().contains("ends here"), qPrintable(file->problem()));
                QCOMPARE(file->size(), QFileInfo(path).size());
            }
            QCoreApplication::processEvents();
            QCOMPARE(failures.size(), 1);
            PlayingBench played(contentsOf(path), {});
            QVERIFY2(played.isOpen, qPrintable(played.problem));
            played.player.advanceTo(100000);
            last = played.value().toInt();
            QVERIFY2(last > 1000 && last < 20000, qPrintable(QString::number(last)));
            if (form == RecordingFile::Plain) {
                QVERIFY(contentsOf(path).endsWith(QByteArray::number(last) + "}\n"));
                QCOMPARE(played.player.troubles(), QString());
                // Not even a line less than there was space for.
                QVERIFY(QFileInfo(path).size() > 499900);
            }
        }
    }

    /// A recording that was appended goes on where the first one ended, compressed or not.
    void appended()
    {
        const QByteArray first = recordingHeader + start + numbered(4);
        const QByteArray second = recordingHeader + numbered(3);
        QCOMPARE(recordTo(m_folder.filePath("1.gz"), RecordingFile::Compressed, first), QString());
        QCOMPARE(recordTo(m_folder.filePath("2.gz"), RecordingFile::Compressed, second), QString());
        for (const QByteArray& both : {first + second, contentsOf(m_folder.filePath("1.gz")) + contentsOf(m_folder.filePath("2.gz"))}) {
            PlayingBench played(both, {});
            played.player.advanceTo(5);
            QCOMPARE(played.value(), QVariant(4));
            played.player.advanceTo(6);
            QCOMPARE(played.value(), QVariant(2));
            played.player.advanceTo(7);
            QCOMPARE(played.value(), QVariant(3));
            QCOMPARE(played.player.troubles(), QString());
        }
    }
};

QTEST_GUILESS_MAIN(RecordingFilesTest)
#include "tst_recordingfiles.moc"
