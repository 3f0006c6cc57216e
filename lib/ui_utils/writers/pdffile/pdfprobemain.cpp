// Does with a PDF file all that the library would do with it, in a process that may crash. Only the library starts it.

#include "writers/pdffile/pdfciphers_p.h"
#include "writers/pdffile/pdfprobeprotocol_p.h"

#include <podofo/podofo.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>
#include <ostream>
#include <streambuf>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace probe = uiutils::pdfprobe;

namespace {

void limit(__rlimit_resource resource, rlim_t value)
{
    rlimit now {};
    if (::getrlimit(resource, &now) == 0 && now.rlim_max != RLIM_INFINITY && now.rlim_max < value)
        value = now.rlim_max;
    const rlimit wanted {value, value};
    // A process without limits must not read the file.
    if (::setrlimit(resource, &wanted) != 0)
        ::_exit(1);
}

/// Leaves this process nothing but the two descriptors and a limited share of the machine.
void confine(std::uint64_t bytes)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_DUMPABLE, 0);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::close_range(3, ~0U, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NOFILE, 3);
    limit(RLIMIT_CPU, probe::processorSeconds);
    limit(RLIMIT_STACK, probe::stack);
#ifndef __SANITIZE_ADDRESS__
    limit(RLIMIT_AS, probe::addressSpace(bytes));
#endif
}

void say(unsigned char word)
{
    while (::write(STDOUT_FILENO, &word, 1) < 0 && errno == EINTR) { }
}

class NowhereBuffer : public std::streambuf
{
protected:
    std::streamsize xsputn(const char*, std::streamsize size) override { return size; }
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
};

void writeNowhere(PoDoFo::PdfMemDocument& document)
{
    NowhereBuffer buffer;
    std::ostream stream(&buffer);
    PoDoFo::PdfOutputDevice device(&stream);
    document.Write(&device);
}

void readAndChange(PoDoFo::PdfMemDocument& document)
{
    PoDoFo::PdfInfo* info = document.GetInfo();
    for (const char* key : {"Title", "Author", "Subject", "Producer", "CreationDate"}) {
        const PoDoFo::PdfObject* value = info->GetObject()->GetIndirectKey(PoDoFo::PdfName(key));
        if (value && (value->IsString() || value->IsHexString()))
            value->GetString().GetStringUtf8();
    }
    const PoDoFo::PdfString text("probe");
    info->SetTitle(text);
    info->SetAuthor(text);
    info->SetSubject(text);
    info->SetProducer(text);
}

/// Includes the destruction of the document, which recurses as deep as loading it.
void tryOut(const char* contents, std::uint64_t bytes)
{
    PoDoFo::PdfError::EnableLogging(false);
    PoDoFo::PdfError::EnableDebug(false);
    PoDoFo::PdfParser::SetMaxObjectCount(probe::mostObjects);
    PoDoFo::PdfMemDocument document;
    document.LoadFromBuffer(contents, long(bytes));
    say(probe::loaded);
    if (!document.GetEncrypted())
        writeNowhere(document);
    readAndChange(document);
}

unsigned char resultFor(const char* contents, std::uint64_t bytes)
{
    try {
        tryOut(contents, bytes);
        return probe::harmless;
    } catch (const PoDoFo::PdfError& error) {
        const int code = error.GetError();
        return code > probe::harmless && code < probe::loaded ? static_cast<unsigned char>(code) : probe::otherError;
    } catch (const std::bad_alloc&) {
        return PoDoFo::ePdfError_OutOfMemory;
    } catch (...) {
        return probe::otherError;
    }
}

} // namespace

int main()
{
    struct stat file = {};
    if (::fstat(STDIN_FILENO, &file) != 0 || file.st_size <= 0)
        return 1;
    const auto bytes = std::uint64_t(file.st_size);
    void* contents = ::mmap(nullptr, bytes, PROT_READ, MAP_PRIVATE, STDIN_FILENO, 0);
    if (contents == MAP_FAILED)
        return 1;
    // The ciphers are in a library, which cannot be opened after confine().
    if (::memmem(contents, bytes, "/Encrypt", 8))
        uiutils::pdf::allowOldCiphers();
    confine(bytes);
    say(probe::started);
    say(resultFor(static_cast<const char*>(contents), bytes));
    // There is nothing to clean up, and handlers that run at exit might write.
    ::_exit(0);
}
