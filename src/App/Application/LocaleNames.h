#pragma once

#include "App/Application/ostrel_app_export.h"

#include <map>
#include <string>

namespace Ostrel::App {

/// The display names of locales, the one source of the labels of the language menu: the product's
/// locales in their own language, three-letter language codes in English. Built once, never changed.
OSTREL_APP_EXPORT const std::map<std::string, std::string>& GetLocaleNameTable();

/// The table's name for `locale`, or `locale` itself when the table has no row for it.
OSTREL_APP_EXPORT std::string GetLocaleDisplayName(const std::string& locale);

} // namespace Ostrel::App
