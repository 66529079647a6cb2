#include "Ipc/UserIdentityCore_win.h"

#include <sddl.h>

#include <vector>

namespace Ostrel::Win32 {

namespace {
std::wstring fail(DWORD* error)
{
    if (error)
        *error = ::GetLastError();
    return {};
}
} // namespace

std::wstring TokenUserSid(HANDLE token, DWORD* error)
{
    DWORD size = 0;
    ::GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    if (size == 0)
        return fail(error);
    std::vector<unsigned char> buffer(size);
    if (!::GetTokenInformation(token, TokenUser, buffer.data(), size, &size))
        return fail(error);
    wchar_t* text = nullptr;
    if (!::ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(buffer.data())->User.Sid, &text))
        return fail(error);
    std::wstring sid(text);
    ::LocalFree(text);
    return sid;
}

std::wstring ProcessUserSid(HANDLE process, DWORD* error)
{
    HANDLE token = nullptr;
    if (!::OpenProcessToken(process, TOKEN_QUERY, &token))
        return fail(error);
    std::wstring sid = TokenUserSid(token, error);
    ::CloseHandle(token);
    return sid;
}

std::wstring TokenUserKey(HANDLE token, DWORD* error)
{
    DWORD session = 0;
    DWORD size = 0;
    if (!::GetTokenInformation(token, TokenSessionId, &session, sizeof(session), &size))
        return fail(error);
    const std::wstring sid = TokenUserSid(token, error);
    if (sid.empty())
        return {};
    return std::to_wstring(session) + L'-' + sid;
}

std::wstring CurrentUserKey(DWORD* error)
{
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token))
        return fail(error);
    std::wstring key = TokenUserKey(token, error);
    ::CloseHandle(token);
    return key;
}

} // namespace Ostrel::Win32
