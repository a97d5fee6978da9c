#!/usr/bin/env bash
# Builds the São Francisco demo project, runs every scenario and prints the performance metrics
# of each. Usage: scripts/run-demo.sh [folder]   (default build/demo; it is made afresh)
# KOVA names the kova program (default build/apps/kova/kova).
set -euo pipefail
cd "$(dirname "$0")/.."
kova=${KOVA:-build/apps/kova/kova}
folder=${1:-build/demo}
project="$folder/sao_francisco.sjson"

rm -rf "$folder"
"$kova" demo "$folder" --quiet
"$kova" info "$project"
echo
"$kova" run "$project" --quiet --seed 1
for scenario in "Regras" "Prioridades" "Janelas a partir do armazenamento atual"; do
  echo
  echo "== $scenario"
  "$kova" metrics "$project" --scenario "$scenario"
done
echo
echo "== Otimização das regras"
"$kova" front "$project" --scenario "Otimização das regras"
echo
echo "== Curva de garantia"
"$kova" curve "$project" --scenario "Curva de garantia"
echo
echo "== Curva de garantia do sistema"
"$kova" curve "$project" --scenario "Curva de garantia do sistema"
