// A stand-in for the solver in tests. Started with no argument in a station folder, it reads
// Caso.dat and the general data file it names, notes the run in the case folder, and then does
// what an instruction file says, one instruction a line, in order:
//
//   previsao P1..P6 I1..I6 S1..S6   forecast file: forecasts, lower and upper limits of six weeks
//   relatorio TEXTO                 report file and its "bcx" companion
//   planilha                        the spreadsheet file
//   runstate [TEXTO]                RUNSTATE.DAT with TEXTO as its first line (empty line without)
//   runstate-vazio                  RUNSTATE.DAT with no line at all
//   aviso TEXTO                     Aviso.txt
//   prevp                           Prevp.dat and Prevt.dat
//   apaga NOME                      deletes a file of the station folder
//   espera MS                       sleeps
//   aborta                          crashes
//
// The instructions are those of Instrucoes.txt in the station folder, else of Instrucoes_CODE.txt
// in the case folder, else of Instrucoes.txt in the case folder; none at all means doing nothing.
// Every run appends one line to Execucoes.txt in the case folder: the code, the first line of
// Caso.dat, and whether the general data file, merro.tmp and the forecast file stood in the folder
// when it started.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::string semFimDeLinha(std::string linha) {
    while (!linha.empty() && (linha.back() == '\r' || linha.back() == '\n')) {
        linha.pop_back();
    }
    return linha;
}

std::string apara(const std::string& texto) {
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string::npos) {
        return {};
    }
    return texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
}

std::vector<std::string> linhasDe(const fs::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    std::vector<std::string> linhas;
    std::string linha;
    while (std::getline(entrada, linha)) {
        linhas.push_back(semFimDeLinha(linha));
    }
    return linhas;
}

void grava(const fs::path& arquivo, const std::vector<std::string>& linhas) {
    std::ofstream saida(arquivo, std::ios::binary | std::ios::trunc);
    for (const auto& linha : linhas) {
        saida << linha << "\r\n";
    }
}

// The names that the general data file gives the solver's outputs (lines 1, 6 and 7).
struct Nomes {
    std::string relatorio;
    std::string previsoes;
    std::string planilha;
};

Nomes nomesDe(const std::vector<std::string>& dadosGerais) {
    const auto linha = [&](std::size_t n) { return n <= dadosGerais.size() ? apara(dadosGerais[n - 1]) : ""; };
    return {linha(1), linha(6), linha(7)};
}

// A line of the forecast file: a label in columns 1 to 24, six fields of nine columns behind it.
std::string linhaPrevisao(const std::string& rotulo, const std::vector<double>& valores) {
    std::ostringstream linha;
    linha << std::left << std::setw(24) << rotulo << std::right << std::fixed << std::setprecision(2);
    for (const double valor : valores) {
        linha << std::setw(9) << valor;
    }
    return linha.str();
}

void gravaPrevisao(const fs::path& arquivo, std::istringstream& argumentos) {
    std::vector<double> valores;
    double valor = 0;
    while (argumentos >> valor) {
        valores.push_back(valor);
    }
    valores.resize(18, 0);
    const auto trecho = [&](std::size_t i) {
        return std::vector<double>(valores.begin() + static_cast<long>(i) * 6,
                                   valores.begin() + static_cast<long>(i + 1) * 6);
    };
    grava(arquivo, {"Previsoes de teste", linhaPrevisao("Semana", {1, 2, 3, 4, 5, 6}),
                    linhaPrevisao("Previsao", trecho(0)), linhaPrevisao("Limite Inferior", trecho(1)),
                    linhaPrevisao("Limite Superior", trecho(2))});
}

std::string companheiro(const std::string& relatorio) {
    const auto ponto = relatorio.find('.');
    return (ponto == std::string::npos ? std::string() : relatorio.substr(0, ponto + 1)) + "bcx";
}

fs::path arquivoDeInstrucoes(const fs::path& pasta, const std::string& codigo) {
    for (const fs::path& candidato : {pasta / "Instrucoes.txt", pasta.parent_path() / ("Instrucoes_" + codigo + ".txt"),
                                     pasta.parent_path() / "Instrucoes.txt"}) {
        if (fs::exists(candidato)) {
            return candidato;
        }
    }
    return {};
}

}  // namespace

int main() {
    const fs::path pasta = fs::current_path();
    const std::string codigo = pasta.filename().string();
    const fs::path caso = pasta / "Caso.dat";
    if (!fs::exists(caso)) {
        std::cerr << "CorvalinTeste: Caso.dat nao encontrado em " << pasta << '\n';
        return 3;
    }
    const auto linhasCaso = linhasDe(caso);
    const std::string dadosGerais = linhasCaso.empty() ? std::string() : linhasCaso.front();
    const bool temDadosGerais = !dadosGerais.empty() && fs::exists(pasta / dadosGerais);
    const Nomes nomes = nomesDe(temDadosGerais ? linhasDe(pasta / dadosGerais) : std::vector<std::string>());
    {
        std::ofstream execucoes(pasta.parent_path() / "Execucoes.txt", std::ios::binary | std::ios::app);
        execucoes << codigo << ' ' << dadosGerais << " dadosgerais=" << temDadosGerais
                  << " merro=" << fs::exists(pasta / "merro.tmp")
                  << " previsao=" << (!nomes.previsoes.empty() && fs::exists(pasta / nomes.previsoes)) << "\r\n";
    }

    const fs::path instrucoes = arquivoDeInstrucoes(pasta, codigo);
    for (const auto& linha : instrucoes.empty() ? std::vector<std::string>() : linhasDe(instrucoes)) {
        std::istringstream argumentos(linha);
        std::string instrucao;
        argumentos >> instrucao;
        std::string resto;
        std::getline(argumentos >> std::ws, resto);
        if (instrucao == "previsao") {
            std::istringstream valores(resto);
            gravaPrevisao(pasta / nomes.previsoes, valores);
        } else if (instrucao == "relatorio") {
            grava(pasta / nomes.relatorio, {resto});
            grava(pasta / companheiro(nomes.relatorio), {resto});
        } else if (instrucao == "planilha") {
            grava(pasta / nomes.planilha, {"planilha"});
        } else if (instrucao == "runstate") {
            grava(pasta / "RUNSTATE.DAT", {resto});
        } else if (instrucao == "runstate-vazio") {
            grava(pasta / "RUNSTATE.DAT", {});
        } else if (instrucao == "aviso") {
            grava(pasta / "Aviso.txt", {resto});
        } else if (instrucao == "prevp") {
            grava(pasta / "Prevp.dat", {"prevp"});
            grava(pasta / "Prevt.dat", {"prevt"});
        } else if (instrucao == "apaga") {
            fs::remove(pasta / resto);
        } else if (instrucao == "espera") {
            std::this_thread::sleep_for(std::chrono::milliseconds(std::stol(resto)));
        } else if (instrucao == "aborta") {
            std::abort();
        } else if (!instrucao.empty()) {
            std::cerr << "CorvalinTeste: instrucao desconhecida: " << instrucao << '\n';
            return 4;
        }
    }
    return 0;
}
