#include "library.h"

#include <zors.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace fs = std::filesystem;

namespace zors::contract {
namespace {

fs::path libraryFile()
{
    Dl_info info;
    if (!dladdr(reinterpret_cast<void*>(&zorsGetLibVersion), &info))
        throw std::runtime_error("library not loaded");
    return fs::canonical(info.dli_fname);
}

} // namespace

Library::Library(const test::Variant& variant) : name_(variant.name)
{
    // The loader takes one file once, whatever its path: each variant needs a file of its own.
    const fs::path folder = fs::temp_directory_path() / ("zors-contract-" + std::to_string(getpid()) + name_);
    fs::create_directory(folder);
    const fs::path file = folder / "libzorsr5.so.8.1";
    fs::copy_file(libraryFile(), file);

    char mask[20];
    std::snprintf(mask, sizeof mask, "%llx", static_cast<unsigned long long>(variant.mask));
    setenv("ZOR_CPU_FEATURES", mask, 1);
    handle_ = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    unsetenv("ZOR_CPU_FEATURES");
    fs::remove_all(folder);
    if (!handle_) throw std::runtime_error(dlerror());
}

void* Library::function(const std::string& name) const
{
    void* f = dlsym(handle_, name.c_str());
    if (!f) throw std::runtime_error(name + " is declared and not exported");
    return f;
}

std::ptrdiff_t Library::implementation(const std::string& name) const
{
    // The entry is mov slot(%rip), %rax: three bytes of instruction, then the distance from its end.
    const auto* entry = static_cast<const char*>(function(name));
    std::int32_t distance;
    std::memcpy(&distance, entry + 3, sizeof distance);
    const char* target;
    std::memcpy(&target, entry + 7 + distance, sizeof target);
    Dl_info info;
    if (!dladdr(entry, &info)) throw std::runtime_error("no library at " + name);
    return target - static_cast<const char*>(info.dli_fbase);
}

const std::vector<Library>& libraries()
{
    static const std::vector<Library> loaded = [] {
        std::vector<Library> all;
        for (const auto& variant : test::variants) {
            if (test::processorRuns(variant))
                all.emplace_back(variant);
            else
                std::printf("LEFT OUT: this processor cannot run the %s variant\n", variant.name.data());
        }
        return all;
    }();
    return loaded;
}

} // namespace zors::contract
