// SPDX-License-Identifier: MIT
#include "Pictures.h"

#include <KernelCommonUse/StringConvert.h>

#include <osgDB/Registry>

#include <algorithm>
#include <cstring>
#include <sstream>
#include <stdexcept>

namespace driver
{
namespace
{

/// Small files, in which letters can still be read.
const char* const CoderOptions = "JPEG_QUALITY 80";

osgDB::ReaderWriter& CoderOf(const char* format)
{
    osgDB::ReaderWriter* coder = osgDB::Registry::instance()->getReaderWriterForExtension(format);
    if (!coder)
    {
        throw std::runtime_error(std::string("nothing is installed that reads and writes ") + format);
    }
    return *coder;
}

std::string FormatOf(const CString& path)
{
    return CString2string(path.Mid(path.ReverseFind(L'.') + 1));
}

class FileHandle
{
public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    ~FileHandle()
    {
        if (IsOpen())
        {
            CloseHandle(handle_);
        }
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

private:
    HANDLE handle_;
};

} // namespace

osg::ref_ptr<osg::Image> NewPicture(int width, int height)
{
    osg::ref_ptr<osg::Image> picture = new osg::Image;
    picture->allocateImage(width, height, 1, GL_RGB, GL_UNSIGNED_BYTE);
    return picture;
}

osg::ref_ptr<osg::Image> Part(const osg::Image& picture, const RECT& place)
{
    const int left = std::clamp<int>(place.left, 0, picture.s());
    const int right = std::clamp<int>(place.right, left, picture.s());
    const int top = std::clamp<int>(place.top, 0, picture.t());
    const int bottom = std::clamp<int>(place.bottom, top, picture.t());
    osg::ref_ptr<osg::Image> part = NewPicture(right - left, bottom - top);
    for (int y = top; y < bottom && right > left; ++y)
    {
        std::memcpy(part->data(0, bottom - 1 - y), picture.data(left, picture.t() - 1 - y),
                    static_cast<std::size_t>(right - left) * 3);
    }
    return part;
}

osg::ref_ptr<osg::Image> Reduced(const osg::Image& picture, int factor)
{
    osg::ref_ptr<osg::Image> reduced = NewPicture(picture.s() / factor, picture.t() / factor);
    const int count = factor * factor;
    for (int y = 0; y < reduced->t(); ++y)
    {
        for (int x = 0; x < reduced->s(); ++x)
        {
            int sum[3] = {};
            for (int i = 0; i < count; ++i)
            {
                const unsigned char* source = picture.data(x * factor + i % factor, y * factor + i / factor);
                for (int component = 0; component < 3; ++component)
                {
                    sum[component] += source[component];
                }
            }
            for (int component = 0; component < 3; ++component)
            {
                reduced->data(x, y)[component] = static_cast<unsigned char>((sum[component] + count / 2) / count);
            }
        }
    }
    return reduced;
}

std::string Encoded(const osg::Image& picture, const char* format)
{
    std::ostringstream bytes(std::ios::binary);
    const osg::ref_ptr<osgDB::Options> options = new osgDB::Options(CoderOptions);
    if (!CoderOf(format).writeImage(picture, bytes, options).success())
    {
        throw std::runtime_error(std::string("a picture cannot be written as ") + format);
    }
    return bytes.str();
}

osg::ref_ptr<osg::Image> Decoded(const std::string& bytes, const char* format)
{
    std::istringstream stream(bytes, std::ios::binary);
    osg::ref_ptr<osg::Image> picture = CoderOf(format).readImage(stream).getImage();
    if (!picture || picture->getPixelFormat() != GL_RGB || picture->getPacking() != 1)
    {
        throw std::runtime_error(std::string("no picture as the driver writes them, in ") + format);
    }
    return picture;
}

void WritePictureFile(const CString& path, const osg::Image& picture)
{
    const std::string bytes = Encoded(picture, FormatOf(path).c_str());
    const FileHandle file(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (!file.IsOpen() || !WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        written != bytes.size())
    {
        throw std::runtime_error("cannot be written: " + CString2string(path));
    }
}

osg::ref_ptr<osg::Image> LoadPictureFile(const CString& path)
{
    const FileHandle file(CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    std::string bytes(file.IsOpen() ? GetFileSize(file.Get(), nullptr) : 0, '\0');
    DWORD read = 0;
    if (!file.IsOpen() || !ReadFile(file.Get(), &bytes[0], static_cast<DWORD>(bytes.size()), &read, nullptr) ||
        read != bytes.size())
    {
        throw std::runtime_error("cannot be read: " + CString2string(path));
    }
    return Decoded(bytes, FormatOf(path).c_str());
}

} // namespace driver
