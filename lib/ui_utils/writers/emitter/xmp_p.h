#pragma once

#include <QByteArray>

namespace uiutils::pdf {

struct DocumentInformation;

/// The XMP packet of a PDF file, UTF-8, which says the same as its information dictionary. Characters that XML cannot
/// hold are left out or replaced.
QByteArray xmpPacket(const DocumentInformation& information);

/// Whether the packet begins as those of xmpPacket() do, so that another one may take its place: packets of other
/// programs hold more than is known here.
bool isOwnXmpPacket(const QByteArray& packet);

/// Sets the archive form that a packet of xmpPacket() claims.
void readArchiveForm(const QByteArray& packet, DocumentInformation* information);

} // namespace uiutils::pdf
