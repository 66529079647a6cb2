// The title-file parser on arbitrary bytes: it must end, never crash, and what it reads must
// survive a write and a second read unchanged.

#include "Foundation/DataInputString.h"
#include "Foundation/Property.h"
#include "Foundation/PropertySerializer.h"

#include <glog/logging.h>

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace Ostrel::Core;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FLAGS_minloglevel = google::GLOG_FATAL; // broken input logs warnings by design
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Property property;
    PropertySerializer::Deserialize(
        property, DataInputString::Create(std::string(reinterpret_cast<const char*>(data), size)), true);
    property.ChildExists("en_US");

    const std::string written = PropertySerializer::Serialize(property);
    Property again;
    if (!PropertySerializer::Deserialize(again, DataInputString::Create(written), true))
        std::abort();
    if (PropertySerializer::Serialize(again) != written)
        std::abort();
    return 0;
}
