#include <array>
#include <linux/input.h>
#include <unistd.h>

// Passes input events from standard input on to standard output, each as it comes: a filter that decides
// nothing, to measure what a process in the middle of a pipeline costs.
int main() {
    std::array<char, 64 * sizeof(input_event)> events;
    for (ssize_t size = 0; (size = ::read(STDIN_FILENO, events.data(), events.size())) > 0;) {
        if (::write(STDOUT_FILENO, events.data(), static_cast<std::size_t>(size)) != size) {
            return 1;
        }
    }
    return 0;
}
