# shellcheck shell=bash
# How libcurl is built for 64-bit Windows: static, HTTP and HTTPS only, TLS through Schannel, so
# that trust is the system's certificate store. The install is keyed by a hash of this file and of
# the patches. The functions are run as stages by tools/setup/curl.sh, which sets $curlSource,
# $curlBuild, $curlPrefix and $curlStage.

# The expected number of compiler calls, for the progress display only.
curlCompilerCalls=130

curlOptions=(
    -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_SYSTEM_PROCESSOR=x86_64
    -DCMAKE_C_COMPILER=x86_64-w64-mingw32-gcc-posix
    -DCMAKE_RC_COMPILER=x86_64-w64-mingw32-windres
    -DCMAKE_FIND_ROOT_PATH=/usr/x86_64-w64-mingw32
    -DCMAKE_FIND_ROOT_PATH_MODE_PROGRAM=NEVER -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY
    -DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=ONLY
    -DCMAKE_BUILD_TYPE=Release "-DCMAKE_C_FLAGS=-ffunction-sections -fdata-sections"
    "-DCMAKE_C_FLAGS_RELEASE=-Os -DNDEBUG"
    -DBUILD_SHARED_LIBS=OFF -DBUILD_CURL_EXE=OFF -DBUILD_TESTING=OFF -DENABLE_MANUAL=OFF
    -DPICKY_COMPILER=OFF # dozens of checks for warnings about code that is not ours
    -DHTTP_ONLY=ON -DCURL_USE_SCHANNEL=ON -DENABLE_UNICODE=ON
    -DCURL_ZLIB=OFF -DCURL_BROTLI=OFF -DCURL_ZSTD=OFF -DUSE_NGHTTP2=OFF -DUSE_LIBIDN2=OFF
    -DCURL_USE_LIBPSL=OFF -DCURL_USE_LIBSSH=OFF -DCURL_USE_LIBSSH2=OFF -DCURL_USE_GSSAPI=OFF
    # What is left: requests with headers and a body, proxies with Basic authentication.
    -DCURL_DISABLE_ALTSVC=ON -DCURL_DISABLE_COOKIES=ON -DCURL_DISABLE_CRYPTO_AUTH=ON
    -DCURL_DISABLE_DOH=ON -DCURL_DISABLE_GETOPTIONS=ON -DCURL_DISABLE_HSTS=ON
    -DCURL_DISABLE_MIME=ON -DCURL_DISABLE_NETRC=ON -DCURL_DISABLE_NTLM=ON
    -DCURL_DISABLE_PARSEDATE=ON -DCURL_DISABLE_PROGRESS_METER=ON -DCURL_DISABLE_SHUFFLE_DNS=ON
    -DCURL_DISABLE_VERBOSE_STRINGS=ON
)

curlConfigure() {
    cmake -G Ninja -S "$curlSource" -B "$curlBuild" "-DCMAKE_INSTALL_PREFIX=$curlPrefix" \
        "${curlOptions[@]}"
}

curlCompile() {
    cmake --build "$curlBuild" -j "$curlJobs" --verbose
}

curlInstall() {
    DESTDIR="$curlStage" cmake --install "$curlBuild"
}
