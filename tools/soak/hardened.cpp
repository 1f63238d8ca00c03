// Copies its argument into too small a place. Built with the flags of the
// program that players get, it must end itself instead (tools/soak/check-hardening).

#include <cstdio>
#include <cstring>

int main(int count, char** arguments)
{
    char name[16];
    std::strcpy(name, count > 1 ? arguments[1] : "");
    std::puts(name);
    return 0;
}
