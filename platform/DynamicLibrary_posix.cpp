#include "platform/Descriptor_posix.h"
#include "platform/DynamicLibrary.h"

#include <array>
#include <cstring>
#include <optional>

#include <dlfcn.h>
#include <elf.h>
#include <fcntl.h>
#include <link.h>

namespace vantrel {

namespace {

/// The part of an ELF file's header that is the same for both word sizes.
struct FileHeader {
    std::array<unsigned char, EI_NIDENT> identification{};
    std::uint16_t type = 0;
    std::uint16_t machine = 0;

    bool isElf() const { return std::memcmp(identification.data(), ELFMAG, SELFMAG) == 0; }
    std::string wordSize() const {
        return identification[EI_CLASS] == ELFCLASS64 ? "64-bit" : "32-bit";
    }
};

/// A file that is too short for a header yields one that is no ELF header.
Result<FileHeader> readHeader(const std::string& path) {
    struct stat details {};
    if (!readDetails(path, details))
        return systemFailure(errno);
    if (!S_ISREG(details.st_mode))
        return Failure{"Not a regular file"};
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        return systemFailure(errno);
    std::array<char, sizeof(FileHeader)> bytes{};
    FileHeader header;
    if (::read(file.number(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()))
        std::memcpy(&header, bytes.data(), bytes.size());
    return header;
}

/// Why the running program cannot load a library with this header. The program's own file is the
/// measure; where the system doesn't show it, the loader decides.
std::optional<Failure> mismatch(const FileHeader& library) {
    if (!library.isElf())
        return Failure{"not a library of this system"};
    const auto program = readHeader("/proc/self/exe");
    if (!program || !program->isElf())
        return std::nullopt;
    if (library.wordSize() != program->wordSize())
        return Failure{library.wordSize() + " library, " + program->wordSize() + " program"};
    if (library.identification[EI_DATA] != program->identification[EI_DATA] ||
        library.machine != program->machine)
        return Failure{"library for another kind of processor"};
    return std::nullopt;
}

/// Whether the file holds all that the loader would map; it would be killed by reading past the
/// end. For a library of the running program's word size.
bool isWhole(const std::string& path) {
    struct stat details {};
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    ElfW(Ehdr) header{};
    if (::fstat(file.number(), &details) != 0 ||
        ::pread(file.number(), &header, sizeof header, 0) != sizeof header)
        return false;
    const auto size = static_cast<ElfW(Off)>(details.st_size);
    for (int i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment{};
        const auto place = static_cast<off_t>(header.e_phoff + sizeof segment * i);
        if (::pread(file.number(), &segment, sizeof segment, place) != sizeof segment)
            return false;
        if (segment.p_type == PT_LOAD &&
            (segment.p_offset > size || segment.p_filesz > size - segment.p_offset))
            return false;
    }
    return true;
}

std::string loaderText() {
    const char* text = ::dlerror();
    return text ? text : "the library cannot be loaded";
}

} // namespace

Result<std::unique_ptr<DynamicLibrary>> DynamicLibrary::load(const std::string& absolutePath) {
    // A bare name would be searched for in places that anybody may write to.
    if (!absolutePath.starts_with('/'))
        return Failure{"not an absolute path"};
    const auto header = readHeader(absolutePath);
    if (!header)
        return Failure{header.reason()};
    if (const auto failure = mismatch(*header))
        return *failure;
    if (!isWhole(absolutePath))
        return Failure{"the file is cut short"};
    void* handle = ::dlopen(absolutePath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return Failure{loaderText()};
    return std::unique_ptr<DynamicLibrary>(new DynamicLibrary(handle));
}

DynamicLibrary::~DynamicLibrary() {
    if (!keptLoaded_)
        ::dlclose(handle_);
}

void* DynamicLibrary::symbol(const std::string& name) const {
    return ::dlsym(handle_, name.c_str());
}

} // namespace vantrel
