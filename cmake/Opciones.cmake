# Compiler and linker options live on one interface target; nothing is set globally.
add_library(zt_opciones INTERFACE)
target_compile_features(zt_opciones INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)

target_compile_definitions(zt_opciones INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(MSVC)
    target_compile_options(zt_opciones INTERFACE /W4 /utf-8 /permissive- $<$<BOOL:${ZELT_AVISOS_SON_ERRORES}>:/WX>)
else()
    target_compile_options(zt_opciones INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wold-style-cast -Wcast-align -Wnull-dereference -Wextra-semi
        $<$<BOOL:${ZELT_AVISOS_SON_ERRORES}>:-Werror>)
endif()

# What the sanitizers find ends the program (`no-sanitize-recover`), so that a test fails on it. Their
# instrumentation confuses the compiler's own search for null pointers.
if(ZELT_SANEADORES)
    target_compile_options(zt_opciones INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
        -fno-sanitize-recover=undefined -Wno-null-dereference)
    target_link_options(zt_opciones INTERFACE -fsanitize=address,undefined)
endif()

# The fuzzer steers by the branches that an input takes; its own `main` is linked to the targets only. It
# sees undefined behaviour only where that ends the run, hence `no-sanitize-recover` here too.
if(ZELT_FUZZ)
    target_compile_options(zt_opciones INTERFACE -fsanitize=fuzzer-no-link,address,undefined
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(zt_opciones INTERFACE -fsanitize=address,undefined)
endif()

if(ZELT_COBERTURA)
    target_compile_options(zt_opciones INTERFACE --coverage)
    target_link_options(zt_opciones INTERFACE --coverage)
endif()
