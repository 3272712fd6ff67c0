# brisklet_qt_definitions: the strict dialect of Qt that all our Qt code is written in.
add_library(brisklet_qt_definitions INTERFACE)
target_compile_definitions(brisklet_qt_definitions INTERFACE
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
