#include "Foundation/DataInputString.h"

namespace Ostrel::Core {

class DataInputString::Impl
{
public:
    std::string bytes;
    std::size_t position = 0;
};

std::shared_ptr<DataInputString> DataInputString::Create(std::string bytes)
{
    return std::shared_ptr<DataInputString>(new DataInputString(std::move(bytes)));
}

DataInputString::DataInputString(std::string bytes) : d(std::make_unique<Impl>())
{
    d->bytes = std::move(bytes);
}

DataInputString::~DataInputString() = default;

bool DataInputString::AtEnd() const
{
    return d->position >= d->bytes.size();
}

std::string DataInputString::ReadLine()
{
    const std::string& bytes = d->bytes;
    std::size_t& position = d->position;
    if (position >= bytes.size())
        return std::string();
    const std::size_t end = bytes.find_first_of("\r\n", position);
    if (end == std::string::npos) {
        std::string line = bytes.substr(position);
        position = bytes.size();
        return line;
    }
    std::string line = bytes.substr(position, end - position);
    position = end + 1;
    if (bytes[end] == '\r' && position < bytes.size() && bytes[position] == '\n')
        ++position;
    return line;
}

std::size_t DataInputString::Position() const
{
    return d->position;
}

const std::string& DataInputString::Data() const
{
    return d->bytes;
}

} // namespace Ostrel::Core
