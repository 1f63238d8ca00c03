// Preloaded into the game and into what it is compared with: notes when the
// program sends pixels to the display and when it hears of keys and clicks. The
// programs themselves know nothing of it.
//
//   TORVENHALL_PROBE=FILE     where the notes go, a line each:
//                             "put NS WINDOW WIDTH HEIGHT CPU_NS", "press NS",
//                             "release NS", "message NS" (of the window manager);
//                             times are CLOCK_MONOTONIC's
//   TORVENHALL_PROBE_END=1    the first window is on the display: end at once
//
// It names the toolkit's display library only by the symbols that it stands
// before, so that no program has to load it for the probe.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace
{

/// xcb's reply to a request that has none; returned in a register, as there.
struct Cookie {
    unsigned int sequence;
};

// Smaller ones are no window: cursors, icons, tooltips.
constexpr int SmallestWindow = 20'000; // pixels

// Of the X protocol.
constexpr std::uint8_t KeyPress = 2, KeyRelease = 3, ButtonPress = 4, ButtonRelease = 5,
                       ClientMessage = 33, Generic = 35;
constexpr std::uint8_t SentMark = 0x80;

int notes = -1;
bool endsAtFirst = false;

long long Nanoseconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

template <class... Values>
void Note(const char* format, Values... values)
{
    if (notes < 0) {
        return;
    }
    std::array<char, 160> line{};
    const int length = std::snprintf(line.data(), line.size(), format, values...);
    static_cast<void>(!write(notes, line.data(), static_cast<std::size_t>(length)));
}

/// The function of that name that the program would have called. Plugins bring
/// their libraries along unseen by others, hence by name.
template <class Function>
Function* Real(const char* library, const char* name)
{
    void* const handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
    void* const found = handle != nullptr ? dlsym(handle, name) : nullptr;
    if (found == nullptr) {
        std::fprintf(stderr, "probe: %s has no %s\n", library, name);
        std::abort();
    }
    return reinterpret_cast<Function*>(found);
}

constexpr const char* Xcb = "libxcb.so.1";
constexpr const char* XcbShm = "libxcb-shm.so.0";

/// Returns when the display has done everything that it was told.
void AwaitDisplay(void* connection)
{
    static const auto ask = Real<Cookie(void*)>(Xcb, "xcb_get_input_focus");
    static const auto answer = Real<void*(void*, Cookie, void*)>(Xcb, "xcb_get_input_focus_reply");
    std::free(answer(connection, ask(connection), nullptr));
}

void Sent(void* connection, std::uint32_t window, int width, int height)
{
    const bool isWindow = width * height >= SmallestWindow;
    if (endsAtFirst && isWindow) {
        AwaitDisplay(connection);
    }
    Note("put %lld %u %d %d %lld\n", Nanoseconds(CLOCK_MONOTONIC), window, width, height,
         Nanoseconds(CLOCK_PROCESS_CPUTIME_ID));
    if (endsAtFirst && isWindow) {
        _exit(0);
    }
}

void Heard(const std::uint8_t* event)
{
    if (event == nullptr) {
        return;
    }
    // An input extension's event tells its kind behind the usual header.
    const unsigned type = event[0] & ~SentMark;
    const unsigned kind = type == Generic ? event[8] | event[9] << 8U : type;
    if (kind == ButtonPress || kind == KeyPress) {
        Note("press %lld\n", Nanoseconds(CLOCK_MONOTONIC));
    } else if (kind == ButtonRelease || kind == KeyRelease) {
        Note("release %lld\n", Nanoseconds(CLOCK_MONOTONIC));
    } else if (kind == ClientMessage) {
        Note("message %lld\n", Nanoseconds(CLOCK_MONOTONIC));
    }
}

struct Opening {
    Opening()
    {
        if (const char* file = std::getenv("TORVENHALL_PROBE")) {
            notes = open(file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
        }
        endsAtFirst = std::getenv("TORVENHALL_PROBE_END") != nullptr;
    }
} opening;

} // namespace

extern "C" {

Cookie xcb_put_image(void* connection, std::uint8_t format, std::uint32_t drawable,
                     std::uint32_t context, std::uint16_t width, std::uint16_t height,
                     std::int16_t x, std::int16_t y, std::uint8_t pad, std::uint8_t depth,
                     std::uint32_t length, const std::uint8_t* data)
{
    static const auto real = Real<decltype(xcb_put_image)>(Xcb, "xcb_put_image");
    const Cookie sent =
        real(connection, format, drawable, context, width, height, x, y, pad, depth, length, data);
    Sent(connection, drawable, width, height);
    return sent;
}

Cookie xcb_shm_put_image(void* connection, std::uint32_t drawable, std::uint32_t context,
                         std::uint16_t wholeWidth, std::uint16_t wholeHeight, std::uint16_t fromX,
                         std::uint16_t fromY, std::uint16_t width, std::uint16_t height,
                         std::int16_t x, std::int16_t y, std::uint8_t depth, std::uint8_t format,
                         std::uint8_t sendEvent, std::uint32_t segment, std::uint32_t offset)
{
    static const auto real = Real<decltype(xcb_shm_put_image)>(XcbShm, "xcb_shm_put_image");
    const Cookie sent = real(connection, drawable, context, wholeWidth, wholeHeight, fromX, fromY,
                             width, height, x, y, depth, format, sendEvent, segment, offset);
    Sent(connection, drawable, width, height);
    return sent;
}

void* xcb_wait_for_event(void* connection)
{
    static const auto real = Real<decltype(xcb_wait_for_event)>(Xcb, "xcb_wait_for_event");
    void* const event = real(connection);
    Heard(static_cast<const std::uint8_t*>(event));
    return event;
}

void* xcb_poll_for_event(void* connection)
{
    static const auto real = Real<decltype(xcb_poll_for_event)>(Xcb, "xcb_poll_for_event");
    void* const event = real(connection);
    Heard(static_cast<const std::uint8_t*>(event));
    return event;
}

void* xcb_poll_for_queued_event(void* connection)
{
    static const auto real =
        Real<decltype(xcb_poll_for_queued_event)>(Xcb, "xcb_poll_for_queued_event");
    void* const event = real(connection);
    Heard(static_cast<const std::uint8_t*>(event));
    return event;
}
}
