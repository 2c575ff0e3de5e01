// The solver: started with no argument in the station folder, which Caso.dat describes.

#include "solver/Execucao.h"

#include <filesystem>

int main() {
    return static_cast<int>(solver::executaEstacao(std::filesystem::current_path()));
}
