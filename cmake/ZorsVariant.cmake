# Code of the library: hidden unless exported, no C++ run-time support, and the same floating-point results
# from every compiler and instruction set. Contraction to fused operations is off: it would differ by variant.
set(ZORS_LIBRARY_OPTIONS
    -fvisibility=hidden -fvisibility-inlines-hidden -fno-exceptions -fno-rtti -fno-threadsafe-statics
    -ffp-contract=off -fno-math-errno -fno-trapping-math $<$<CONFIG:Release>:-O3>
    # g++ 12 takes the "undefined" operand inside its own intrinsics for an error of the caller.
    "$<$<CXX_COMPILER_ID:GNU>:-Wno-uninitialized;-Wno-maybe-uninitialized>"
    # A unique symbol would keep the library from being unloaded.
    "$<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>")

# The processor variants: vector width in bytes and instruction sets.
set(ZORS_VARIANTS r5 avx2 avx512)
set(ZORS_VARIANT_BYTES_r5 16)
set(ZORS_VARIANT_OPTIONS_r5 -msse3)
set(ZORS_VARIANT_BYTES_avx2 32)
set(ZORS_VARIANT_OPTIONS_avx2 -mavx2 -mfma -mf16c)
set(ZORS_VARIANT_BYTES_avx512 64)
set(ZORS_VARIANT_OPTIONS_avx512 -mavx2 -mfma -mf16c -mavx512f -mavx512bw -mavx512dq -mavx512vl
                                -mprefer-vector-width=512)

# zors_variant_options(TARGET VARIANT): compiles a target's sources as code of one variant.
function(zors_variant_options target variant)
  string(COMPARE EQUAL ${variant} r5 baseline)
  target_compile_definitions(${target} PRIVATE
    ZORS_VARIANT=${variant} ZORS_BASELINE=$<BOOL:${baseline}> ZORS_VECTOR_BYTES=${ZORS_VARIANT_BYTES_${variant}})
  target_compile_options(${target} PRIVATE ${ZORS_LIBRARY_OPTIONS} ${ZORS_VARIANT_OPTIONS_${variant}})
  target_include_directories(${target} PRIVATE ${zors_SOURCE_DIR}/src ${zors_SOURCE_DIR}/include)
endfunction()

# GNU binutils, whatever the compiler brings: the others lack the option to merge groups.
find_program(ZORS_LD NAMES ld.bfd REQUIRED)
find_program(ZORS_OBJCOPY NAMES objcopy REQUIRED)

# zors_closed_object(OUT VARIANT SOURCES...): one object of a wider variant, all of whose symbols are local. Two
# things force this: the linker may take any of several copies of an inline function, so the baseline could get
# one that was compiled for a wider processor; and nothing outside should reach into a variant.
function(zors_closed_object out variant)
  set(target zors_${variant})
  add_library(${target} OBJECT ${ARGN})
  zors_variant_options(${target} ${variant})
  set(object ${CMAKE_CURRENT_BINARY_DIR}/${target}.o)
  # g++ counts the precompiled header among the objects.
  set(objects "$<FILTER:$<TARGET_OBJECTS:${target}>,EXCLUDE,[.]gch$>")
  add_custom_command(
    OUTPUT ${object}
    COMMAND ${ZORS_LD} -r --force-group-allocation -o ${object}.open ${objects}
    COMMAND ${ZORS_OBJCOPY} --keep-global-symbol=none ${object}.open ${object}
    COMMAND ${CMAKE_COMMAND} -E rm ${object}.open
    DEPENDS ${target} ${objects}
    COMMAND_EXPAND_LISTS VERBATIM
    COMMENT "Closing variant ${variant}")
  set_source_files_properties(${object} PROPERTIES EXTERNAL_OBJECT ON GENERATED ON)
  set(${out} ${object} PARENT_SCOPE)
endfunction()
