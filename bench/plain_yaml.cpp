// plain_yaml FILE: reads a YAML file with a plain parser and does nothing with it; the measure for `barquell
// replay`.

#include <yaml.h>

#include <cstdio>
#include <memory>

int main(int argc, char **argv) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(
        argc == 2 ? std::fopen(argv[1], "rb") : nullptr, std::fclose);
    if (!file) {
        std::fputs("usage: plain_yaml FILE\n", stderr);
        return 2;
    }
    yaml_parser_t parser;
    if (yaml_parser_initialize(&parser) == 0) {
        return 1;
    }
    const std::unique_ptr<yaml_parser_t, void (*)(yaml_parser_t *)> owner(&parser, yaml_parser_delete);
    yaml_parser_set_input_file(&parser, file.get());
    long count = 0;
    for (bool ended = false; !ended; ++count) {
        yaml_event_t event;
        if (yaml_parser_parse(&parser, &event) == 0) {
            std::fprintf(stderr, "plain_yaml: %s\n", parser.problem);
            return 1;
        }
        ended = event.type == YAML_STREAM_END_EVENT;
        yaml_event_delete(&event);
    }
    std::printf("%ld events of the parser\n", count);
    return 0;
}
