#pragma once

#include "App/Application/ostrel_app_export.h"

#include <boost/core/demangle.hpp>

#include <memory>
#include <string>
#include <typeinfo>

namespace Ostrel::App {

/// Logs the ERROR line that names a component `user` needs and the product has not set.
OSTREL_APP_EXPORT void logMissingComponent(const std::string& user, const std::string& component);

/// The component T of `context` for building `user`. A missing one is named in an ERROR line and
/// still returned (null), so that the caller raises the error it always raised: a product that
/// forgot a component reads its name in the log instead of only "NotNull can not initialized by
/// null".
template <class T, class Context>
std::shared_ptr<T> requiredComponent(const Context& context, const char* user)
{
    auto component = context.template get<T>();
    if (!component)
        logMissingComponent(user, boost::core::demangle(typeid(T).name()));
    return component;
}

} // namespace Ostrel::App
