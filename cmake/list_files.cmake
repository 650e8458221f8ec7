# Writes files.json of FOLDER: [name, size in bytes] of each of NAMES.
set(ROWS)
foreach(NAME ${NAMES})
    file(SIZE ${FOLDER}/${NAME} BYTES)
    list(APPEND ROWS "[\"${NAME}\", ${BYTES}]")
endforeach()
list(JOIN ROWS ",\n" ROWS)
file(WRITE ${FOLDER}/files.json "[\n${ROWS}\n]\n")
