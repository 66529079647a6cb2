#include "App/Application/Extensions/Extension.h"

namespace Ostrel::App {

Extension::~Extension() = default;

void Extension::onStart() {}

} // namespace Ostrel::App
