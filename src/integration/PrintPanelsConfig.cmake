# find_package(PrintPanels) gives PrintPanels::Integration: link it and
# include <PrintPanelsIntegration.h>.
include(CMakeFindDependencyMacro)
find_dependency(Qt6 COMPONENTS Widgets PrintSupport)
include(${CMAKE_CURRENT_LIST_DIR}/PrintPanelsTargets.cmake)
