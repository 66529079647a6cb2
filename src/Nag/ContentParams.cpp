#include "Nag/ContentParams.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Nag/AbstractContent.h"

namespace Ostrel::App::NagScreen {

namespace {
std::string stateName(ContentState state)
{
    switch (state) {
    case ContentState::Loading:
        return "LOADING";
    case ContentState::Ready:
        return "READY";
    case ContentState::Failed:
        return "FAILED";
    }
    return "UNKNOWN";
}
} // namespace

void appendContentParams(std::map<std::string, std::string>& params, const AbstractContent& content)
{
    params["NAG_ID"] = Util::QStringToUtf8(content.Id());
    params["NAG_NAME"] = Util::QStringToUtf8(content.Name());
    params["NAG_TYPE"] = Util::QStringToUtf8(content.Type());
    params["NAG_APP_ACTION"] = Util::QStringToUtf8(content.AppAction());
    params["NAG_APP_MODE"] = Util::QStringToUtf8(content.AppMode());
    // A web nag's address may carry the user's data (its query is the product's own).
    params["NAG_SOURCE_URL"] =
        Util::QStringToUtf8(Core::PersonalDataMask::mask(content.SourceUrl().toDisplayString()));
    params["NAG_STATE"] = stateName(content.State());
}

} // namespace Ostrel::App::NagScreen
