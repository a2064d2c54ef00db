#include "output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <nlohmann/json.hpp>

#include "exit_codes.h"

namespace
{

int first_error = 0;

void remember_error()
{
    if (first_error == 0)
        first_error = errno != 0 ? errno : EIO;
}

}  // namespace

namespace invctl
{

void write_out(const std::string &text)
{
    errno = 0;
    if (fwrite(text.data(), 1, text.size(), stdout) != text.size())
        remember_error();
}

int finish_output(int code)
{
    errno = 0;
    if (fflush(stdout) != 0)
        remember_error();
    if (first_error == 0)
        return code;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the command has one thread
    fprintf(stderr, "invctl: cannot write standard output: %s\n", strerror(first_error));
    return exit_trouble;
}

std::string printable(const char *text)
{
    static const char digits[] = "0123456789abcdef";
    std::string result;
    for (const char *at = text; *at != '\0'; ++at) {
        auto octet = static_cast<unsigned char>(*at);
        if (octet >= 0x20 && octet != 0x7f && octet != '"' && octet != '\\') {
            result += *at;
        } else if (octet == '"' || octet == '\\') {
            result += '\\';
            result += *at;
        } else {
            result += "\\x";
            result += digits[octet >> 4];
            result += digits[octet & 15];
        }
    }
    return result;
}

std::string valid_utf8(const char *text)
{
    // The records cut texts at a count of octets, which may fall inside a character.
    using json = nlohmann::json;
    std::string quoted = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
    return json::parse(quoted).get<std::string>();
}

}  // namespace invctl
