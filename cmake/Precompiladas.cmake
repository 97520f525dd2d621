# Headers that are parsed once a library instead of once a file: those of the toolkit, the standard library
# and the test frameworks. None of the program's own is among them, and every file names what it uses: one
# build without them (ZELT_PRECOMPILADAS=OFF) and clang-tidy see to that.

set(zt_precompiladas_core
    <QByteArray> <QDate> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList> <QStringView>
    <QTime>
    <algorithm> <array> <cmath> <exception> <functional> <initializer_list> <map> <memory> <optional> <span>
    <string> <string_view> <type_traits> <unordered_map> <utility> <variant> <vector>)

set(zt_precompiladas_forms
    <QAbstractButton> <QAction> <QApplication> <QBoxLayout> <QCheckBox> <QDialog> <QEvent> <QEventLoop>
    <QFileDialog> <QFocusEvent> <QFont> <QGridLayout> <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow>
    <QMdiArea> <QMdiSubWindow> <QMenu> <QMessageBox> <QMouseEvent> <QPainter> <QPixmap> <QPointer>
    <QProgressBar> <QPushButton> <QScopeGuard> <QStyle> <QTimer> <QToolBar> <QTreeView> <QVariant> <QWidget>)

set(zt_precompiladas_pruebas <gmock/gmock.h> <gtest/gtest.h> <rapidcheck.h> <rapidcheck/gtest.h> <sstream>)

# zt_precompilar(zt_core core): the lists of those names for that library.
function(zt_precompilar biblioteca)
    if(ZELT_PRECOMPILADAS)
        foreach(lista ${ARGN})
            target_precompile_headers(${biblioteca} PRIVATE ${zt_precompiladas_${lista}})
        endforeach()
    endif()
endfunction()

# Uses what was parsed for another target of the same options.
function(zt_reutilizar_precompiladas destino biblioteca)
    if(ZELT_PRECOMPILADAS)
        target_precompile_headers(${destino} REUSE_FROM ${biblioteca})
    endif()
endfunction()
