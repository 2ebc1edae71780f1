# The program's own folder as a user has it: the programs, and beside them the result folder, which
# no program makes.
set(MARLO_PROGRAM_FOLDER "${PROJECT_BINARY_DIR}/marlo")
file(MAKE_DIRECTORY "${MARLO_PROGRAM_FOLDER}/resultfiles")
