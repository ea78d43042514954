#include "output.h"

#include "common/error.h"

#include <unistd.h>

namespace wav {

namespace fs = std::filesystem;

// A link is followed: it is the file behind it that is replaced.
Output::Output(const fs::path& path, const SF_INFO& info)
    : path_(fs::weakly_canonical(path)), part_(path_.string() + "." + std::to_string(getpid()) + ".part")
{
    if (fs::exists(path_) && !fs::is_regular_file(path_))
        throw example::Error(path.string() + ": exists and is not a regular file");
    SF_INFO written = info;
    file_.reset(sf_open(part_.c_str(), SFM_WRITE, &written));
    if (!file_) throw example::Error(path.string() + ": cannot create the file: " + sf_strerror(nullptr));
}

Output::~Output()
{
    std::error_code ignored;
    fs::remove(part_, ignored);
}

void Output::complete()
{
    if (sf_close(file_.release()) != 0) fail();
    fs::rename(part_, path_);
}

void Output::fail() const
{
    throw example::Error(path_.string() + ": cannot write all samples");
}

} // namespace wav
