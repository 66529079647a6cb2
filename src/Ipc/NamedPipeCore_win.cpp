#include "Ipc/NamedPipeCore_win.h"

#include "Ipc/UserIdentityCore_win.h"

#include <sddl.h>

namespace Ostrel::Win32 {

namespace {
constexpr DWORD BufferSize = 64 * 1024;
}

PSECURITY_DESCRIPTOR UserOnlyDescriptor(const std::wstring& sid, DWORD* error)
{
    // Nobody else, not even to look.
    const std::wstring sddl = L"D:P(A;;GA;;;" + sid + L')';
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (sid.empty() || !::ConvertStringSecurityDescriptorToSecurityDescriptorW(sddl.c_str(), SDDL_REVISION_1,
                                                                               &descriptor, nullptr)) {
        *error = sid.empty() ? ERROR_INVALID_SID : ::GetLastError();
        return nullptr;
    }
    return descriptor;
}

HANDLE CreatePipeInstance(const std::wstring& name, PSECURITY_DESCRIPTOR descriptor, bool first, DWORD* error)
{
    SECURITY_ATTRIBUTES attributes = {sizeof(attributes), descriptor, FALSE};
    const DWORD openMode =
        PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | (first ? FILE_FLAG_FIRST_PIPE_INSTANCE : 0);
    HANDLE pipe = ::CreateNamedPipeW(
        name.c_str(), openMode, PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS,
        PIPE_UNLIMITED_INSTANCES, BufferSize, BufferSize, 0, &attributes);
    if (pipe == INVALID_HANDLE_VALUE)
        *error = ::GetLastError();
    return pipe;
}

HANDLE ConnectPipe(const std::wstring& name, DWORD timeoutMs, DWORD* error)
{
    const ULONGLONG deadline = ::GetTickCount64() + timeoutMs;
    for (;;) {
        // Identification only: the server may learn who we are, never act as us.
        HANDLE pipe =
            ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                          FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION, nullptr);
        if (pipe != INVALID_HANDLE_VALUE)
            return pipe;
        *error = ::GetLastError();
        const ULONGLONG now = ::GetTickCount64();
        if (*error != ERROR_PIPE_BUSY || now >= deadline)
            return INVALID_HANDLE_VALUE;
        ::WaitNamedPipeW(name.c_str(), static_cast<DWORD>(deadline - now));
    }
}

bool PipeServerIsCurrentUser(HANDLE pipe)
{
    // A pipe of this name made first by someone else would get the request.
    ULONG serverPid = 0;
    if (!::GetNamedPipeServerProcessId(pipe, &serverPid))
        return false;
    HANDLE server = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, serverPid);
    if (!server)
        return false;
    const std::wstring serverSid = ProcessUserSid(server);
    ::CloseHandle(server);
    return !serverSid.empty() && serverSid == ProcessUserSid(::GetCurrentProcess());
}

} // namespace Ostrel::Win32
