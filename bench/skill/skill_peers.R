# Skill of R's forecast package on the same rivers and origins as bench_skill, run by hand (not
# in CI):
#
#   bench_skill --semanas /tmp/semanas
#   Rscript bench/skill/skill_peers.R /tmp/semanas
#
# The weekly series come from bench_skill itself, so both programs score the same weeks: fitted
# on all years but the last five, forecasts from every week of those five years with the
# observations up to that week, six weeks ahead, 95% intervals.
#   - stlf on log flows: STL decomposition with period 52 and ETS of the seasonally adjusted
#     series, refitted at each origin;
#   - auto.arima on log flows with Fourier terms of period 52 (non-seasonal ARIMA errors), chosen
#     once on the fitted years and filtered up to each origin with the same coefficients.
# Forecasts are back-transformed medians.

suppressPackageStartupMessages(library(forecast))

args <- commandArgs(trailingOnly = TRUE)
pasta <- if (length(args) > 0) args[1] else "/tmp/semanas"
rios <- c(choptank_greensboro = "Choptank em Greensboro", fraser_hope = "Fraser em Hope",
          minam_camels = "Minam em Minam", red_fargo = "Red em Fargo")
anos_avaliados <- 5
semanas <- 52
horizonte <- 6
termos_fourier <- 6

pontua <- function(previsor, y, inicio) {
  erros <- lapply(1:horizonte, function(h) list(ape = c(), se = c(), dentro = c()))
  for (origem in inicio:length(y)) {
    f <- previsor(origem)
    for (h in 1:horizonte) {
      alvo <- origem + h - 1
      if (alvo > length(y)) next
      obs <- y[alvo]
      erros[[h]]$ape <- c(erros[[h]]$ape, 100 * abs(f$media[h] - obs) / obs)
      erros[[h]]$se <- c(erros[[h]]$se, (f$media[h] - obs)^2)
      erros[[h]]$dentro <- c(erros[[h]]$dentro, obs >= f$inferior[h] && obs <= f$superior[h])
    }
  }
  list(mape = sapply(erros, function(e) mean(e$ape)),
       rmse = sapply(erros, function(e) sqrt(mean(e$se))),
       cobertura = sapply(erros, function(e) 100 * mean(e$dentro)))
}

linha <- function(nome, valores, formato) {
  paste0("| ", nome, " | ", paste(sprintf(formato, valores), collapse = " | "), " |")
}

for (arquivo in names(rios)) {
  dados <- read.csv(file.path(pasta, paste0(arquivo, ".csv")))
  y <- dados$vazao
  inicio <- length(y) - anos_avaliados * semanas + 1
  ajuste <- ts(log(y[1:(inicio - 1)]), frequency = semanas)
  xreg_total <- fourier(ts(y, frequency = semanas), K = termos_fourier)
  xreg_futuro <- function(origem) {
    linhas <- origem:(origem + horizonte - 1)
    # Beyond the last week the Fourier terms go on with the same period.
    xreg_total[((linhas - 1) %% nrow(xreg_total)) + 1, , drop = FALSE]
  }

  stl_previsor <- function(origem) {
    f <- stlf(ts(log(y[1:(origem - 1)]), frequency = semanas), h = horizonte, level = 95)
    list(media = exp(f$mean), inferior = exp(f$lower[, 1]), superior = exp(f$upper[, 1]))
  }
  modelo <- auto.arima(ajuste, xreg = xreg_total[1:(inicio - 1), ], seasonal = FALSE)
  arima_previsor <- function(origem) {
    filtrado <- Arima(ts(log(y[1:(origem - 1)]), frequency = semanas),
                      xreg = xreg_total[1:(origem - 1), ], model = modelo)
    f <- forecast(filtrado, xreg = xreg_futuro(origem), level = 95)
    list(media = exp(f$mean), inferior = exp(f$lower[, 1]), superior = exp(f$upper[, 1]))
  }
  resultados <- list(stlf = pontua(stl_previsor, y, inicio),
                     arima = pontua(arima_previsor, y, inicio))
  nomes <- c(stlf = "R stlf (log)", arima = paste0("R auto.arima + Fourier (log), ",
                                                   paste(arimaorder(modelo), collapse = ",")))
  cat("### ", rios[[arquivo]], " (R forecast ", as.character(packageVersion("forecast")), ")\n\n", sep = "")
  for (medida in c("mape", "rmse", "cobertura")) {
    titulo <- c(mape = "MAPE (%) por semana à frente", rmse = "RMSE (m³/s)",
                cobertura = "Cobertura do intervalo de 95% (%)")[[medida]]
    formato <- c(mape = "%.1f", rmse = "%.4g", cobertura = "%.1f")[[medida]]
    cat("| ", titulo, " | 1 | 2 | 3 | 4 | 5 | 6 |\n|---|---|---|---|---|---|---|\n", sep = "")
    for (m in names(resultados)) cat(linha(nomes[[m]], resultados[[m]][[medida]], formato), "\n", sep = "")
    cat("\n")
  }
}
