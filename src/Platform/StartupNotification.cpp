#include "Platform/StartupNotification.h"

#include "Support/MainThread.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace brisklet {

namespace {

/// How many bytes of a message fit into one X11 event.
constexpr std::size_t kPieceSize = 20;

struct Free {
    void operator()(void* memory) const noexcept { std::free(memory); }
};

QByteArray removalOf(const QString& id) {
    QByteArray message = "remove: ID=";
    for (const char letter : id.toUtf8()) {
        if (letter == ' ' || letter == '"' || letter == '\\')
            message += '\\';
        message += letter;
    }
    return message;
}

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Sends a message with its final zero byte to all listeners, in pieces that `sender` identifies.
void broadcast(xcb_connection_t* connection, xcb_window_t root, xcb_window_t sender,
               const QByteArray& message) {
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = sender;
    event.type = atom(connection, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t following = atom(connection, "_NET_STARTUP_INFO");
    const std::string_view bytes(message.constData(), static_cast<std::size_t>(message.size()) + 1);
    for (std::size_t at = 0; at < bytes.size(); at += kPieceSize) {
        const std::string_view piece = bytes.substr(at, kPieceSize);
        std::memset(event.data.data8, 0, kPieceSize);
        std::memcpy(event.data.data8, piece.data(), piece.size());
        xcb_send_event(connection, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&event));
        event.type = following;
    }
}

} // namespace

void endStartupNotification(const QString& id) {
    verifyMainThread();
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (id.isEmpty() || x11 == nullptr || x11->connection() == nullptr)
        return;
    xcb_connection_t* connection = x11->connection();
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t sender = xcb_generate_id(connection);
    xcb_create_window(connection, 0, sender, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    broadcast(connection, screen->root, sender, removalOf(id));
    xcb_destroy_window(connection, sender);
    xcb_flush(connection);
}

} // namespace brisklet
