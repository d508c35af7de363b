// Runs the program that its arguments name, its words going nowhere, and tells the highest amount of memory
// that it has had, in KiB. A process of its own, and small: what a program has before it becomes another one
// counts as that one's.
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int, char* argv[]) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::execv(argv[1], argv + 1);
        ::_exit(EXIT_FAILURE);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || ::wait4(child, &status, 0, &used) != child)
        return EXIT_FAILURE;
    std::printf("%ld\n", used.ru_maxrss);
    return EXIT_SUCCESS;
}
