#include "bench/skill/RiosSemanais.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <stdexcept>

namespace skill {

namespace {

bool pBissexto(int ano) {
    return (ano % 4 == 0 && ano % 100 != 0) || ano % 400 == 0;
}

int pDiaDoAno(int ano, int mes, int dia) {
    static constexpr int acumulado[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return acumulado[mes - 1] + dia + (mes > 2 && pBissexto(ano) ? 1 : 0);
}

struct SomaSemana {
    double soma = 0.0;
    int dias = 0;
};

int pDiasDaSemana(int ano, int semana) {
    const int diasNoAno = pBissexto(ano) ? 366 : 365;
    return semana < semanasPorAno ? 7 : diasNoAno - 7 * (semanasPorAno - 1);
}

}  // namespace

int semanaDoDia(int diaDoAno) {
    return std::min((diaDoAno - 1) / 7 + 1, semanasPorAno);
}

int RioSemanal::anosCompletos() const {
    int n = 0;
    for (const auto& ano : anos) {
        n += ano.size() == semanasPorAno ? 1 : 0;
    }
    return n;
}

std::vector<double> RioSemanal::serie() const {
    std::vector<double> s;
    for (const auto& ano : anos) {
        s.insert(s.end(), ano.begin(), ano.end());
    }
    return s;
}

RioSemanal leRio(const std::filesystem::path& csv) {
    std::ifstream entrada(csv);
    if (!entrada) {
        throw std::runtime_error("não foi possível ler " + csv.string());
    }
    std::map<std::pair<int, int>, SomaSemana> semanas;
    std::string linha;
    std::getline(entrada, linha);  // header
    while (std::getline(entrada, linha)) {
        int ano = 0;
        int mes = 0;
        int dia = 0;
        char valor[32] = {};
        if (std::sscanf(linha.c_str(), "%d-%d-%d,%31s", &ano, &mes, &dia, valor) != 4 ||
            std::string(valor) == "NA") {
            continue;
        }
        SomaSemana& s = semanas[{ano, semanaDoDia(pDiaDoAno(ano, mes, dia))}];
        s.soma += std::stod(valor);
        ++s.dias;
    }
    RioSemanal rio;
    int anoEsperado = 0;
    int semanaEsperada = 1;
    for (const auto& [chave, s] : semanas) {
        const auto [ano, semana] = chave;
        const bool completa = s.dias == pDiasDaSemana(ano, semana);
        if (rio.anos.empty() && anoEsperado == 0) {
            if (semana != 1 || !completa) {
                continue;
            }
            rio.anoInicial = anoEsperado = ano;
        }
        if (ano != anoEsperado || semana != semanaEsperada || !completa) {
            break;
        }
        if (semana == 1) {
            rio.anos.emplace_back();
        }
        rio.anos.back().push_back(s.soma / s.dias);
        if (++semanaEsperada > semanasPorAno) {
            semanaEsperada = 1;
            ++anoEsperado;
        }
    }
    return rio;
}

}  // namespace skill
