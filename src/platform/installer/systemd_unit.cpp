#include "platform/installer/systemd_unit.h"

#include <fmt/format.h>

#include "platform/helper_names.h"

namespace quelby {

namespace {

constexpr std::string_view service =
    "[Unit]\n"
    "Description=Quelby charge limit\n"
    // However often the helper exits, it is started again.
    "StartLimitIntervalSec=0\n"
    "\n"
    "[Service]\n"
    // Starting fails, and with it the installation, where the executable cannot be run at all.
    "Type=exec\n"
    "ExecStart={}\n"
    "Restart=always\n"
    // A helper that fails at once must not cost the power that it is to save.
    "RestartSec=10\n"
    "\n"
    // The one folder outside /sys that the helper can write to. Every user's program writes there as well,
    // and it comes back at the next start if somebody removed it.
    "StateDirectory=quelby\n"
    "StateDirectoryMode=0777\n"
    // All of the file system is read-only but /dev, /proc and /sys. ProtectKernelTunables has to stay off: it
    // would make /sys read-only, and there the charge limit is set.
    "ProtectSystem=strict\n"
    // Nothing of any user's concerns the helper.
    "ProtectHome=yes\n"
    // The helper keeps its files to itself, and meets none that users have laid into /tmp.
    "PrivateTmp=yes\n"
    // Batteries are reached through /sys alone, so no device is needed.
    "PrivateDevices=yes\n"
    // It neither changes nor reads what belongs to the kernel otherwise ...
    "ProtectKernelModules=yes\n"
    "ProtectKernelLogs=yes\n"
    "ProtectControlGroups=yes\n"
    "ProtectClock=yes\n"
    "ProtectHostname=yes\n"
    // ... and needs to know of no other process.
    "ProtectProc=invisible\n"
    "\n"
    // Root without capabilities still owns the files of /sys, and this is enough to write to them.
    "CapabilityBoundingSet=\n"
    // It starts no other program that could gain rights, and makes no file that could give any.
    "NoNewPrivileges=yes\n"
    "RestrictSUIDSGID=yes\n"
    // The system's bus (before and after sleep) and the kernel's messages (a charger comes or goes), no
    // network.
    "RestrictAddressFamilies=AF_UNIX AF_NETLINK\n"
    "IPAddressDeny=any\n"
    // What an intruder would like and a small program never does.
    "LockPersonality=yes\n"
    "MemoryDenyWriteExecute=yes\n"
    "RestrictNamespaces=yes\n"
    "RestrictRealtime=yes\n"
    // An ordinary service's system calls, of this machine's own kind only (another kind would pass the filter
    // by). What is refused is an error and not the end of the helper.
    "SystemCallArchitectures=native\n"
    "SystemCallFilter=@system-service\n"
    "SystemCallErrorNumber=EPERM\n"
    "\n"
    "[Install]\n"
    "WantedBy=multi-user.target\n";

} // namespace

std::string systemdUnit() {
    return fmt::format(service, linux_helper::executable);
}

} // namespace quelby
