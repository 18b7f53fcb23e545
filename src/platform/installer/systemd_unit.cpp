#include "platform/installer/systemd_unit.h"

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr std::string_view service =
    "[Unit]\n"
    "Description=Quelby charge limit\n"
    // However often the helper exits, it is started again.
    "StartLimitIntervalSec=0\n"
    "\n"
    "[Service]\n"
    // Starting fails, and with it the installation, where the helper cannot do its work at all.
    "Type=notify\n"
    "ExecStart={executable}\n"
    // After any end, also a violent one: a battery that only a running helper may hold must not stay
    // uncharged for ever.
    "ExecStopPost={executable} --release\n"
    "Restart=always\n"
    // A helper that fails at once must not cost the power that it is to save.
    "RestartSec=10\n"
    // It ends within a second where nothing is wrong.
    "TimeoutStopSec=5\n"
    "\n"
    // All that the helper can write to outside /sys: the folder that it shares, which it opens to everybody
    // itself, and its own. They come back at the next start if somebody removed them.
    "StateDirectory={folders}\n"
    "StateDirectoryMode=0700\n"
    "UMask=0077\n"
    // All of the file system is read-only but /dev, /proc and /sys. ProtectKernelTunables has to stay off: it
    // would make /sys read-only, and there the charge limit is set.
    "ProtectSystem=strict\n"
    // Nothing of any user's concerns the helper.
    "ProtectHome=yes\n"
    "PrivateUsers=yes\n"
    // The helper keeps its files to itself, and meets none that users have laid into /tmp.
    "PrivateTmp=yes\n"
    // Batteries are reached through /sys alone, so no device is needed.
    "PrivateDevices=yes\n"
    "DevicePolicy=closed\n"
    "PrivateMounts=yes\n"
    // It neither changes nor reads what belongs to the kernel otherwise ...
    "ProtectKernelModules=yes\n"
    "ProtectKernelLogs=yes\n"
    "ProtectControlGroups=yes\n"
    "ProtectClock=yes\n"
    "ProtectHostname=yes\n"
    // ... and needs to know of no other process.
    "ProtectProc=invisible\n"
    "ProcSubset=pid\n"
    "RemoveIPC=yes\n"
    "KeyringMode=private\n"
    "\n"
    // Root without capabilities still owns the files of /sys, and this is enough to write to them.
    "CapabilityBoundingSet=\n"
    // It starts no other program that could gain rights, and makes no file that could give any.
    "NoNewPrivileges=yes\n"
    "RestrictSUIDSGID=yes\n"
    // The kernel's messages (a charger comes or goes), which arrive without any network as well, and one
    // message to the service manager.
    "PrivateNetwork=yes\n"
    "RestrictAddressFamilies=AF_UNIX AF_NETLINK\n"
    "IPAddressDeny=any\n"
    // What an intruder would like and a small program never does.
    "LockPersonality=yes\n"
    "MemoryDenyWriteExecute=yes\n"
    "RestrictNamespaces=yes\n"
    "RestrictRealtime=yes\n"
    // An ordinary service's system calls, of this machine's own kind only (another kind would pass the filter
    // by), without those for other users and for more than its share. What is refused is an error and not the
    // end of the helper.
    "SystemCallArchitectures=native\n"
    "SystemCallFilter=@system-service\n"
    "SystemCallFilter=~@privileged @resources\n"
    "SystemCallErrorNumber=EPERM\n"
    "\n"
    "[Install]\n"
    "WantedBy=multi-user.target\n";

// The service manager names them relative to its own folder for such.
std::string stateFolders() {
    const std::filesystem::path parent = "/var/lib";
    return std::filesystem::path(linux_helper::folder).lexically_relative(parent).string() + ' ' +
           std::filesystem::path(linux_helper::stateFolder).lexically_relative(parent).string();
}

} // namespace

std::string systemdUnit(const std::filesystem::path& helper) {
    return fmt::format(service, fmt::arg("executable", helper.native()), fmt::arg("folders", stateFolders()));
}

} // namespace quelby
