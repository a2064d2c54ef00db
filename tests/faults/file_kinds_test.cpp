// Names behind which there is no document to read: each is refused at once, with a reason.
#include "faults/reading_world.h"
#include "faults/system_calls.h"

#include "inv_platform/xml_runtime.h"
#include "xml/context.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

using namespace fault_world;

class FileKinds : public ReadingFaults
{
};

std::vector<unit> one_way_each()
{
    std::vector<unit> all = small_units();
    std::erase_if(all, [](const unit &each) { return each.name.ends_with("_by_expat"); });
    return all;
}

INSTANTIATE_TEST_SUITE_P(Units, FileKinds, testing::ValuesIn(one_way_each()), unit_name);

std::string fresh_name(const char *name)
{
    const std::string path = load_world::scratch_folder() + "/" + name;
    std::filesystem::remove_all(path);
    return path;
}

std::string sparse_file(const char *name, off_t size)
{
    const std::string path = load_world::scratch_file(name, "");
    EXPECT_EQ(truncate(path.c_str(), size), 0) << strerror(errno);
    return path;
}

std::string fifo_without_writer()
{
    const std::string path = fresh_name("fifo.xml");
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
}

std::string socket_file()
{
    const std::string path = fresh_name("socket.xml");
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    EXPECT_LT(path.size(), sizeof address.sun_path);
    strcpy(address.sun_path, path.c_str());
    const int made = socket(AF_UNIX, SOCK_STREAM, 0);
    EXPECT_EQ(bind(made, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(made);
    return path;
}

std::string link_to_itself()
{
    const std::string path = fresh_name("loop.xml");
    std::filesystem::create_symlink(path, path);
    return path;
}

struct kind_of_file {
    const char *name;
    std::string (*made)();
    const char *diagnosis;
};

constexpr kind_of_file kinds_of_files[] = {
    {"missing", [] { return fresh_name("missing.xml"); }, "-301 FILE No such file or directory"},
    {"folder", load_world::scratch_folder, "-301 FILE Is a directory"},
    {"FIFO", fifo_without_writer, "-301 FILE not a regular file"},
    {"socket", socket_file, "-301 FILE No such device or address"},
    {"endless device", [] { return std::string("/dev/zero"); }, "-301 FILE not a regular file"},
    {"empty device", [] { return std::string("/dev/null"); }, "-301 FILE not a regular file"},
    {"loop of links", link_to_itself, "-301 FILE Too many levels of symbolic links"},
    {"empty", [] { return load_world::scratch_file("empty.xml", ""); }, "-303 no element found"},
    {"4 GiB", [] { return sparse_file("sparse.xml", off_t{4} << 30); }, "-301 FILE File too large"},
    {"one octet too long", [] { return sparse_file("long.xml", off_t{XB_MAX_FILE_SIZE} + 1); },
     "-301 FILE File too large"},
    {"as long as may be", [] { return sparse_file("full.xml", XB_MAX_FILE_SIZE); },
     "-303 not well-formed (invalid token)"},
};

TEST_P(FileKinds, what_holds_no_document_is_refused_with_its_reason)
{
    for (const kind_of_file &each : kinds_of_files) {
        SCOPED_TRACE(each.name);
        const std::string path = each.made();
        alarm(10);  // a refusal that waits would wait for ever
        EXPECT_EQ(open_instead(path), ending::refused);
        EXPECT_EQ(diagnosis(path), each.diagnosis);
        alarm(0);
        expect_all_well();
    }
}

// Whoever may read everything is nobody while this lives.
class without_privilege
{
public:
    without_privilege() : before(geteuid())
    {
        if (before == 0) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~without_privilege()
    {
        if (before == 0) {
            EXPECT_EQ(seteuid(before), 0);
        }
    }
    without_privilege(const without_privilege &) = delete;
    without_privilege &operator=(const without_privilege &) = delete;

private:
    const uid_t before;
};

TEST_P(FileKinds, a_file_without_permission_is_refused_with_its_reason)
{
    const std::string path = load_world::scratch_file("locked.xml", load_world::text_of(GetParam().path));
    // The folder may be passed: what is refused later is the file.
    ASSERT_EQ(chmod(load_world::scratch_folder().c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0644), 0);
    {
        const without_privilege nobody;
        EXPECT_EQ(open_instead(path), ending::right);
    }
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    {
        const without_privilege nobody;
        EXPECT_EQ(open_instead(path), ending::refused);
        EXPECT_EQ(diagnosis(path), "-301 FILE Permission denied");
    }
    ASSERT_EQ(chmod(path.c_str(), 0644), 0);
}

struct refused_call {
    int error;
    const char *diagnosis;
};

TEST_P(FileKinds, an_open_that_the_system_refuses_is_told_by_status_and_reason)
{
    constexpr refused_call refusals[] = {
        {EACCES, "-301 FILE Permission denied"},
        {EMFILE, "-301 FILE Too many open files"},
        {ENFILE, "-301 FILE Too many open files in system"},
        {EIO, "-301 FILE Input/output error"},
        {ENOMEM, "-10 FILE Cannot allocate memory"},
        {EPERM, "-301 FILE Operation not permitted"},
        {ETXTBSY, "-301 FILE Text file busy"},
    };
    for (const refused_call &each : refusals) {
        auto refuse = [&](const char *, int) {
            errno = each.error;
            return -1;
        };
        system_calls::set_open(refuse);
        EXPECT_EQ(open_under_trouble(), ending::refused) << each.diagnosis;
        system_calls::set_open(refuse);
        EXPECT_EQ(diagnosis(GetParam().path), each.diagnosis);
        system_calls::reset();
    }
}

TEST_P(FileKinds, a_status_that_the_system_refuses_is_told_and_leaves_no_descriptor)
{
    constexpr refused_call refusals[] = {
        {EIO, "-301 FILE Input/output error"},
        {EOVERFLOW, "-301 FILE Value too large for defined data type"},
        {ENOMEM, "-10 FILE Cannot allocate memory"},
    };
    for (const refused_call &each : refusals) {
        auto refuse = [&](int, struct stat *) {
            errno = each.error;
            return -1;
        };
        system_calls::set_fstat(refuse);
        EXPECT_EQ(open_under_trouble(), ending::refused) << each.diagnosis;
        system_calls::set_fstat(refuse);
        EXPECT_EQ(diagnosis(GetParam().path), each.diagnosis);
        system_calls::reset();
    }
}

// A file that somebody writes to without end, looked at shortly before the limit.
TEST_P(FileKinds, a_file_that_grows_beyond_the_limit_ends_with_a_failure_of_reading)
{
    const std::string path = load_world::scratch_file("growing.xml", " ");
    xb_context context = {};
    ASSERT_EQ(rtXmlInitContext(&context), XB_OK);
    ASSERT_EQ(rtxStreamFileCreateReader(&context, path.c_str()), XB_OK);
    context.state->in.progress.read = XB_MAX_FILE_SIZE - 100000;
    system_calls::set_read([](int, void *buffer, size_t size) {
        memset(buffer, ' ', size);
        return static_cast<ssize_t>(size);
    });
    alarm(10);
    ASSERT_EQ(rtXmlpCreateReader(&context), XB_OK);
    EXPECT_EQ(rtXmlpMatchStartTag(&context, "module", -1), XB_E_FILE_READ);
    alarm(0);
    rtxFreeContext(&context);
}

}  // namespace
