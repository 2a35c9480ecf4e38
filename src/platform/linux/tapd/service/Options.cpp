#include "platform/linux/tapd/service/Options.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <getopt.h>
#include <string_view>

namespace barquell::tapd {

const char *const kUsage =
    "Usage: barquell-tapd [--socket PATH] [--mode OCTAL] [--group NAME] [--grants DIR]\n"
    "       barquell-tapd --grant USER | --withdraw USER [--grants DIR]\n"
    "Holds the touches of a Touch Bar back where a client of a user with a grant says so.\n"
    "\n"
    "  --socket PATH    where clients connect (default /run/barquell/tap.sock), unless the socket is handed "
    "over\n"
    "  --mode OCTAL     permissions of the socket: who may write may connect (default 660)\n"
    "  --group NAME     group of the socket\n"
    "  --grants DIR     where the grants lie (default /var/lib/barquell/grants)\n"
    "  --grant USER     let the user filter, and exit\n"
    "  --withdraw USER  let the user filter no more, and exit\n"
    "  --help           print this and exit\n"
    "  --version        print the version and exit\n";

namespace {

std::optional<mode_t> modeFrom(std::string_view text) {
    mode_t mode = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), mode, 8);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && mode <= 0777 ? std::optional(mode) : std::nullopt;
}

bool take(int option, std::string_view value, Options &options) {
    switch (option) {
    case 's':
        options.socket.path = value;
        return true;
    case 'm':
        if (const auto mode = modeFrom(value)) {
            options.socket.mode = *mode;
            return true;
        }
        std::fprintf(stderr, "barquell-tapd: '%s' is no mode\n", optarg);
        return false;
    case 'g':
        options.socket.group = value;
        return true;
    case 'd':
        options.grants = value;
        return true;
    case 'y':
    case 'n':
        options.task = option == 'y' ? Task::Grant : Task::Withdraw;
        options.user = value;
        return true;
    case 'h':
        options.task = Task::Help;
        return true;
    case 'v':
        options.task = Task::Version;
        return true;
    default:
        return false;
    }
}

} // namespace

std::optional<Options> optionsFrom(int argc, char **argv) {
    static constexpr std::array<option, 9> kOptions{{
        {"socket", required_argument, nullptr, 's'},
        {"mode", required_argument, nullptr, 'm'},
        {"group", required_argument, nullptr, 'g'},
        {"grants", required_argument, nullptr, 'd'},
        {"grant", required_argument, nullptr, 'y'},
        {"withdraw", required_argument, nullptr, 'n'},
        {"help", no_argument, nullptr, 'h'},
        {"version", no_argument, nullptr, 'v'},
        {nullptr, 0, nullptr, 0},
    }};
    Options options;
    int option = 0;
    while ((option = ::getopt_long(argc, argv, "", kOptions.data(), nullptr)) != -1) {
        if (!take(option, optarg ? optarg : "", options)) {
            return std::nullopt;
        }
    }
    if (optind < argc) {
        std::fprintf(stderr, "barquell-tapd: '%s' is no option\n", argv[optind]);
        return std::nullopt;
    }
    return options;
}

} // namespace barquell::tapd
