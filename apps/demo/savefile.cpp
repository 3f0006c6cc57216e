#include "savefile.h"

#include "texts.h"

#include <QSaveFile>

namespace uiutils::demo {

bool saveFile(const QString& path, const QByteArray& contents, QString* error)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit();
    if (!isWritten)
        *error = Texts::tr("%1 cannot be written: %2.").arg(path, file.errorString());
    return isWritten;
}

} // namespace uiutils::demo
