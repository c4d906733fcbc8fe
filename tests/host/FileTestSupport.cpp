// Temporary files of the drawing-file suites.
#include "FileTestSupport.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "headless/TextCodec.h"

namespace filetest {

TempFile::TempFile(const std::string& name)
{
    const std::string path = ::testing::TempDir() + "qx-" + std::to_string(static_cast<long>(getpid())) + "-" + name;
    m_path = headless::fromUtf8(path);
    std::remove(path.c_str());
}

TempFile::~TempFile()
{
    std::remove(headless::toUtf8(m_path).c_str());
}

Bytes TempFile::contents() const
{
    std::ifstream in(headless::toUtf8(m_path), std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace filetest
