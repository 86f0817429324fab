# cmake -D EDITOR= -D LIBRARY= -D CERTIFICATES= -D WITHOUT=*.pem -D FOLDER= -P assemble_editor.cmake
# Puts the editor, a provider library and a folder of certificates together as they stand at a user's.
file(REMOVE_RECURSE ${FOLDER})
file(COPY ${EDITOR} ${LIBRARY} DESTINATION ${FOLDER})
file(COPY ${CERTIFICATES}/ DESTINATION ${FOLDER}/certificates PATTERN ${WITHOUT} EXCLUDE)
