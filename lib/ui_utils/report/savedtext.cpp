#include "report/savedtext_p.h"

#include "base/paths_p.h"
#include "core/inflated_p.h"
#include "report/reportformats_p.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>
#include <memory>

namespace uiutils {

namespace {

constexpr int mostBytes = 1024 * 1024;
/// What does not become smaller becomes a little larger.
constexpr int mostPacked = mostBytes + 64 * 1024;

QString withoutCompression(const QString& path)
{
    return path.endsWith(gzipSuffix) ? path.chopped(gzipSuffix.size()) : path;
}

/// A character that was cut off at the end is left out.
QString textOf(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    return QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
}

} // namespace

bool hasText(const QString& path)
{
    const QString plain = withoutCompression(path);
    const QLatin1String suffixes[] {textSuffix, xmlSuffix, htmlSuffix, jsonSuffix};
    return std::any_of(std::begin(suffixes), std::end(suffixes),
            [&](const QLatin1String& suffix) { return plain.endsWith(suffix); });
}

QString savedText(const QString& path)
{
    QFile file(onDisk(path));
    // Opening a pipe would wait for its other end.
    if (!hasText(path) || !QFileInfo(file.fileName()).isFile() || !file.open(QIODevice::ReadOnly))
        return QString();
    if (!path.endsWith(gzipSuffix))
        return textOf(file.read(mostBytes));
    const Inflated text = inflated(file.read(mostPacked), mostBytes);
    return text.state == Inflated::Damaged ? QString() : textOf(text.bytes);
}

} // namespace uiutils
