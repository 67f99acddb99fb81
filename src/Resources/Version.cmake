# Texts of the program's version record, for the executable and for the program itself, which shows
# them.
set(TROVEX_COMMENTS "Dresse le catalogue des logiciels d'un CD-ROM ou d'un répertoire.")
set(TROVEX_COMPANY_NAME "Les auteurs de ${PROJECT_NAME}")
set(TROVEX_FILE_DESCRIPTION "${PROJECT_NAME}, catalogue des logiciels d'un CD-ROM")
set(TROVEX_LEGAL_COPYRIGHT "Copyright © Les auteurs de ${PROJECT_NAME}")
set(TROVEX_LEGAL_TRADEMARKS "Les marques citées appartiennent à leurs propriétaires.")
