# shellcheck shell=bash
# How Qt is built for 64-bit Windows. The install is keyed by a hash of this file and of the patches:
# any change of them builds Qt again. The functions are run as stages by tools/setup/qt.sh, which
# sets $qtSource, $qtBuild, $qtPrefix, $qtStage and $qtPatches.

# The expected number of compiler calls, for the progress display only.
qtCompilerCalls=640

# Only what the program and its tests use. Four facts behind the choice:
# - tabletevent must be off: Debian's source leaves out the header its Windows part would include;
# - binaryjson and cborstreamreader must stay on: a static QtCore refers to them. So does the Vista
#   style to inputdialog, toolbar, tableview and treeview;
# - no TLS and no network module: the program's HTTP goes through libcurl;
# - C++14 compiles faster than the default, C++17, whose headers are longer.
qtOptions=(
    -opensource -confirm-license -static -release -optimize-size -pch
    -c++std c++14 -xplatform win32-g++ -device-option CROSS_COMPILE=x86_64-w64-mingw32-
    -nomake examples -nomake tests -nomake tools -no-compile-examples
    -no-opengl -no-angle -no-vulkan -no-feature-direct2d -no-dbus -no-icu -no-glib
    -no-openssl -no-schannel -no-sql-odbc -no-sql-sqlite -no-cups -no-fontconfig
    -qt-zlib -qt-pcre -qt-libpng -no-libjpeg -no-gif -qt-harfbuzz -no-freetype
    -qt-doubleconversion -no-libmd4c -external-hostbindir /usr/lib/qt5/bin
)

qtUnusedFeatures=(
    sql network xml concurrent printer pdf picture tuiotouch systemtrayicon textmarkdownwriter
    textodfwriter statemachine sharedmemory systemsemaphore jalalicalendar hijricalendar
    islamiccivilcalendar graphicsview mdiarea dockwidget toolbox wizard calendarwidget colordialog
    fontdialog errormessage progressdialog keysequenceedit lcdnumber dial columnview undoview
    undocommand datawidgetmapper splashscreen syntaxhighlighter treewidget tablewidget fontcombobox
    commandlinkbutton textbrowser scroller gestures filedialog dirmodel filesystemmodel
    concatenatetablesproxymodel transposeproxymodel imageformat_ppm imageformat_xbm sessionmanager
    movie big_codecs style-fusion tabletevent regularexpression timezone codecs completer
    fscompleter mimetype commandlineparser filesystemwatcher proxymodel topleveldomain statusbar
    splitter
)

# What no program here links and no feature switches off: a minute of compiling. When the linker
# misses a class of Qt, take its name out.
qtUnusedFolders=(devicediscovery edid fbconvenience minimal)
qtUnusedSources=(
    qabstractitemmodeltester qabstractlayoutstyleinfo qastchandler qatomic qbenchmarkperfevents
    qblittable qbytearraylist qcollator qcollator_win qcontiguouscache qdistancefield
    qelfparser_p qexception qfactoryinterface qfileiconprovider qfileselector qfontsubset
    qfragmentmap qfreelist qfutureinterface qfuturewatcher qgenericmatrix qgesture
    qgesturemanager qgesturerecognizer qgridlayoutengine qimage_compat qktxhandler qlayoutpolicy
    qlinkedlist qmachparser qmath qmessageauthenticationcode qmetaobjectbuilder
    qnoncontiguousbytedevice qobjectcleanuphandler qoffscreensurface qpaintengine_blitter
    qpaintengine_pic qparallelanimationgroup qpathsimplifier qpauseanimation qpdf qpdfwriter
    qpicture qpictureformatplugin qpixelformat qpixmap_blitter qpixmapstyle qpkmhandler
    qplatformgraphicsbuffer qplatformgraphicsbufferhelper qplatformoffscreensurface
    qplatformsessionmanager qplatformsharedgraphicscache qplatformsystemtrayicon qpointer
    qppmhandler qproxystyle qrefcount qresultstore qrhi qrhid3d11 qrhinull qrhiprofiler
    qscrollarea qsequentialanimationgroup qsessionmanager qshader qshaderdescription
    qshaderformat qshadergraph qshadergraphloader qshaderlanguage qshadernode qshadernodeport
    qshadernodesloader qshareddata qsharedmemory qsharedmemory_win qsignalmapper qsimplecodec
    qstandardgestures qstorageinfo qstorageinfo_win qstring_compat qstringbuilder
    qstringlistmodel qstringview qstylepainter qsyntaxhighlighter qsystemsemaphore
    qsystemsemaphore_win qsystemtrayicon qsystemtrayicon_qpa qtextdocumentwriter
    qtexturefiledata qtexturefilereader qtimeline qtldurl qtriangulatingstroker qtriangulator
    qversiontagging qwidgetresizehandler qwindowscodec qxbmhandler qxmlstream qxmlutils
)

# The compilers are taken by the names without "-posix" inside Qt's makefiles, so a folder of links
# at the front of PATH decides which thread model they are.
qtLinkCompilers() {
    local links=$1 tool
    mkdir -p "$links"
    for tool in gcc g++; do
        ln -sf "$(command -v x86_64-w64-mingw32-$tool-posix)" "$links/x86_64-w64-mingw32-$tool"
    done
    export PATH="$links:$PATH"
}

qtConfigure() {
    qtLinkCompilers "$qtBuild/../compilers"
    mkdir -p "$qtBuild"
    cd "$qtBuild"
    "$qtSource/configure" -prefix "$qtPrefix" "${qtOptions[@]}" \
        "${qtUnusedFeatures[@]/#/-no-feature-}" \
        -device-option "QT_UNUSED_FOLDERS=${qtUnusedFolders[*]}" \
        -device-option "QT_UNUSED_SOURCES=${qtUnusedSources[*]}"
}

qtCompile() {
    qtLinkCompilers "$qtBuild/../compilers"
    make -C "$qtBuild" -j"$qtJobs"
}

qtInstall() {
    qtLinkCompilers "$qtBuild/../compilers"
    make -C "$qtBuild" -j"$qtJobs" INSTALL_ROOT="$qtStage" install
    # CMake's files expect the host's tools beside Qt.
    ln -s /usr/lib/qt5/bin/{qmake,moc,rcc,uic,qlalr} "$qtStage$qtPrefix/bin/"
    qtInstallUnpatchedWindowsPlugin
}

# For the measurements: the platform plugin as Qt ships it, which asks Direct3D at every start.
qtInstallUnpatchedWindowsPlugin() {
    local plugin=src/plugins/platforms/windows unpatched="$qtStage$qtPrefix/unpatched"
    patch -s -d "$qtSource" -p1 -R <"$qtPatches/no-graphics-card-query.patch"
    make -C "$qtBuild/$plugin" -j"$qtJobs"
    mkdir -p "$unpatched"
    cp "$qtBuild/plugins/platforms/libqwindows.a" "$unpatched/"
}
