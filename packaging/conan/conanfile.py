from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy


class Orv3Cal(ConanFile):
    name = "orv3cal"
    version = "1.0.0"
    license = "MIT"
    description = "Sections, catalogues and connection checks of structural steel"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False]}
    default_options = {"shared": False}

    def requirements(self):
        self.requires("eigen/3.4.0", visible=False)  # inside the library, never in its headers

    def export_sources(self):
        source = self.recipe_folder + "/../.."
        for pattern in ("CMakeLists.txt", "LICENSE", "cmake/*", "data/*", "src/*"):
            copy(self, pattern, source, self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        shared = bool(self.options.shared)
        for name, value in (("BUILD_TESTS", False), ("BUILD_CLI", False), ("BUILD_SHARED", shared),
                            ("WINDOWS_DLL", shared)):
            toolchain.variables["ORV3CAL_" + name] = value
        eigen = self.dependencies["eigen"].cpp_info.includedirs[0]
        toolchain.variables["EIGEN_INCLUDE"] = eigen
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, self.package_folder + "/licenses")

    def package_info(self):
        self.cpp_info.libs = ["orv3cal"]
        self.cpp_info.includedirs = ["include/orv3cal"]
        target = "shared" if self.options.shared else "orv3cal"
        self.cpp_info.set_property("cmake_target_name", "orv3cal::" + target)
        if self.settings.os == "Windows":
            self.cpp_info.system_libs = ["comctl32", "comdlg32", "gdi32", "advapi32"]
