#pragma once

#include <cstring>

#include <windows.h>

namespace vantrel::tests {

/// Puts a function of ours in the place of one that this program imports, while it lives.
class ReplacedImport {
  public:
    using Function = void(WINAPI*)();

    ReplacedImport(const char* name, Function ours) : entry_(entryOf(name)) {
        if (entry_)
            original_ = exchange(reinterpret_cast<ULONG_PTR>(ours));
    }
    ~ReplacedImport() {
        if (entry_)
            exchange(original_);
    }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

    bool isFound() const { return entry_ != nullptr; }

  private:
    template <typename Part>
    static Part* at(ULONG_PTR place) {
        return reinterpret_cast<Part*>(reinterpret_cast<char*>(::GetModuleHandleW(nullptr)) +
                                       place);
    }

    static IMAGE_THUNK_DATA* entryOf(const char* name) {
        const auto* const headers =
            at<IMAGE_NT_HEADERS>(static_cast<ULONG_PTR>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
        const auto& table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        for (auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(table.VirtualAddress); library->Name != 0;
             ++library) {
            auto* entry = at<IMAGE_THUNK_DATA>(library->FirstThunk);
            const auto* imported = at<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
            for (; imported->u1.AddressOfData != 0; ++imported, ++entry)
                if (!IMAGE_SNAP_BY_ORDINAL(imported->u1.Ordinal) &&
                    std::strcmp(at<IMAGE_IMPORT_BY_NAME>(imported->u1.AddressOfData)->Name, name) ==
                        0)
                    return entry;
        }
        return nullptr;
    }

    ULONG_PTR exchange(ULONG_PTR function) {
        const ULONG_PTR before = entry_->u1.Function;
        DWORD protection = 0;
        ::VirtualProtect(entry_, sizeof *entry_, PAGE_READWRITE, &protection);
        entry_->u1.Function = function;
        ::VirtualProtect(entry_, sizeof *entry_, protection, &protection);
        return before;
    }

    IMAGE_THUNK_DATA* entry_;
    ULONG_PTR original_ = 0;
};

} // namespace vantrel::tests
