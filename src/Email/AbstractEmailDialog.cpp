#include "Email/AbstractEmailDialog.h"

namespace Ostrel::App {

AbstractEmailDialog::AbstractEmailDialog(QWidget* parent) : QDialog(parent) {}

AbstractEmailDialog::~AbstractEmailDialog() = default;

} // namespace Ostrel::App
