#include "Foundation/DataInputString.h"

namespace Ostrel::Core {

struct DataInputString::Impl
{
    std::string bytes;
    std::size_t position = 0;
};

std::shared_ptr<DataInputString> DataInputString::Create(std::string bytes)
{
    return std::shared_ptr<DataInputString>(new DataInputString(std::move(bytes)));
}

DataInputString::DataInputString(std::string bytes)
    : m_impl(std::make_unique<Impl>())
{
    m_impl->bytes = std::move(bytes);
}

DataInputString::~DataInputString() = default;

bool DataInputString::AtEnd() const
{
    return m_impl->position >= m_impl->bytes.size();
}

std::string DataInputString::ReadLine()
{
    const std::string& bytes = m_impl->bytes;
    std::size_t& position = m_impl->position;
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
    return m_impl->position;
}

const std::string& DataInputString::Data() const
{
    return m_impl->bytes;
}

} // namespace Ostrel::Core
